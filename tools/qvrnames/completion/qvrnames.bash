# Completion of the command line of qvrnames in bash. Source this file, or install it as
# share/bash-completion/completions/qvrnames.

_qvrnames() {
    local common='--json --color --language --help' current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' place=0 word skip=0 options words=''
    # bash splits "--color=never" into three words.
    if [ "$current" = = ]; then
        current=''
    elif [ "$before" = = ]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    # Find the command and the number of its arguments before the current word.
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [ "$skip" = 1 ] && [ "$word" != = ]; then
            skip=0
            continue
        fi
        case $word in
            --color | --language | --base | --output | --format | --from | --baseline | --write-baseline) skip=1 ;;
            = | -?*) ;;
            *) if [ -z "$command" ]; then command=$word; else place=$((place + 1)); fi ;;
        esac
    done
    case $command in
        '') options="$common --version" words='check audit deck propose rename fix explain import' ;;
        check) options="$common --file-name --from" ;;
        audit) options="$common --deck --strict --summary --format --baseline --write-baseline" ;;
        deck | explain) options=$common ;;
        propose) options="$common --base --job" ;;
        rename) options="$common --force --output" ;;
        fix) options="$common --write" ;;
        import) options="$common --output" ;;
        *) return ;;
    esac
    COMPREPLY=()
    case $before in
        --color) words='auto always never' ;;
        --language) words='de en fr ja' ;;
        --format) words='text json sarif junit' ;;
        --base) return ;;
        --output | --from | --baseline | --write-baseline) words=FILE ;;
        *)
            case $command:$current in
                *:-?*) words=$options ;;
                :*) words="$words $options" ;;
                check:*) words=$options ;;
                explain:*) words=$("${COMP_WORDS[0]}" explain 2>/dev/null | sed 's/ .*//') ;;
                audit:*) words=FILE ;;
                *) if [ "$place" = 0 ]; then words=FILE; else words=$options; fi ;;
            esac
            ;;
    esac
    if [ "$words" = FILE ]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
}

complete -F _qvrnames qvrnames
