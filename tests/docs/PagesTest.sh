#!/usr/bin/env bash
# Checks that what the Markdown pages name exists: the targets of links, files and names of the code in backticks, verbs
# of ./dev, and commands and options of qvrnames.
# Usage: PagesTest.sh SOURCE_FOLDER [QVRNAMES]
# shellcheck source=tests/support/checks.sh disable=SC2001,SC2013,SC2016  # the words are names without blanks
source "$(dirname "$0")/../support/checks.sh"
cd "$1"

files=$(comm -23 <(git ls-files 2>/dev/null | sort) <(git ls-files --deleted 2>/dev/null | sort))
[ -n "$files" ] || files=$(find . -path ./build -prune -o -type f -printf '%P\n')
code=$(grep -E '\.(h|cpp|def|exports)$|CMakeLists.txt$|^cmake/' <<<"$files" | xargs -d '\n' cat | tr -cs '[:alnum:]_' '\n' | sort -u)
verbs=$(bash dev | sed -nE 's/^  ([a-z]+) .*/\1/p')
declare -A help=([-]=$([ -z "${2:-}" ] || "$2" --help)) # "-" stands for no command
for command in $(sed -nE 's/^  ([a-z]+) .*/\1/p' <<<"${help[-]}"); do
    help[$command]=$("$2" "$command" --help)
done
has_line() { [[ $'\n'$1$'\n' == *$'\n'$2$'\n'* ]]; }
# is_path NAME: succeeds if the path of a file or folder ends with this name.
is_path() { [[ $'\n'$files$'\n' == *[/$'\n']"$1"[/$'\n']* || $'\n'$files$'\n' == *[/$'\n']"$1".in$'\n'* ]]; }
# anchors_of PAGE: prints the anchors that a forge makes of the headings.
anchors_of() { sed -nE 's/^#+ (.*)/\L\1/p' "$1" | sed 's/[^a-z0-9_ -]//g; s/ /-/g'; }

for page in $(grep '\.md$' <<<"$files"); do
    prose=$(awk '/^```/ { on = !on; next } !on' "$page" | sed 's/``[^`].*[^`]``//g')
    spans=$(grep -oE '`[^`]+`' <<<"$prose" | tr -d '`' || true)
    for verb in $(grep -oP '\./dev \K[a-z]+' "$page"); do
        has_line "$verbs" "$verb" || fault "$page: ./dev has no verb \"$verb\""
    done
    for link in $(sed 's/`[^`]*`//g' <<<"$prose" | grep -oP '\]\(\K(?![a-z]+:)[^)]+'); do
        target=$page
        [[ $link == \#* ]] || target=$(dirname "$page")/${link%%#*}
        [ -e "$target" ] || fault "$page: the link leads nowhere: $link"
        [[ $link != *#* ]] || has_line "$(anchors_of "$target")" "${link#*#}" || fault "$page: there is no heading for $link"
    done
    # Except in folders that the build makes or that are in an installed copy
    for name in $(grep -xE '[A-Za-z0-9_./-]+' <<<"$spans" | grep -vE '^(build|bin|lib|include|share)/' |
        grep -E '[A-Za-z0-9_-]/|[A-Za-z]\.(h|cpp|def|md|cmake|exports|catalog|msg|sh|py|in)$'); do
        is_path "${name%/}" || fault "$page: there is no file \"$name\""
    done
    for word in $([[ ! $page =~ ^(ARCHITECTURE|README|platform/README|docs/bind-a-host)\.md$ ]] || grep -v '^CMAKE_' <<<"$spans" |
        grep -xE '[A-Z][a-z]*[A-Z_][A-Za-z0-9_]*(::[A-Za-z0-9_]+)*(\(.*\))?' | sed 's/(.*//; s/::/\n/g'); do
        has_line "$code" "$word" || fault "$page: the code has no \"$word\""
    done
    # The rows "| `file` | `function`, ... |" of a table of files and functions
    while IFS='|' read -r _ name functions _; do
        text=$(grep "\(^\|/\)${name//[ \`]/}$" <<<"$files" | xargs -d '\n' cat || true)
        for function in ${functions//[,\`]/}; do
            grep -qw "$function" <<<"$text" || fault "$page:${name//\`/}has no \"$function\""
        done
    done < <(awk '/^\| file \| functions \|/ { on = 1; next } !/^\|/ { on = 0 } on && /`/' "$page")
    while [ -n "${2:-}" ] && read -r command options; do
        [ -n "${help[$command]:-}" ] || fault "$page: qvrnames has no \"$command\""
        for option in $(grep -oE -- '--[a-z-]+' <<<"$options"); do
            [[ ${help[$command]:-} == *[\ ,]"$option"[[:space:]]* ]] || fault "$page: qvrnames $command has no option $option"
        done
    done < <({ awk '/^```/ { on = !on } on' "$page"; echo "$spans"; } | grep -oP '(^|[ $/])qvrnames \K[a-z-]+( .*)?' | sed 's/^--/- --/')
done
finish
