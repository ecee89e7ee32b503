#!/usr/bin/env bash
# Validates documents and the reports of audits with JSON Schema, XML Schema and the published schema of SARIF.
# Usage: ReportsTest.sh PROGRAM HOST_FOLDER SARIF_SCHEMA
# shellcheck source=tests/support/checks.sh disable=SC2317  # check calls the function
source "$(dirname "$0")/../support/checks.sh"
program=$(realpath "$1") host=$(realpath "$2") sarif=$(realpath "$3") tests=$(realpath "$(dirname "$0")")
enter_work_folder

# conforms SCHEMA FILE: validates a file and prints the first errors.
conforms() {
    case $1 in
        *.xsd) xmllint --noout --schema "$1" "$2" >errors 2>&1 ;;
        *) jsonschema -i "$2" "$1" >errors 2>&1 ;;
    esac || {
        head -n 20 errors >&2
        return 1
    }
}

# Prints a table of names with findings. The names contain all characters up to U+02FF, and some of more than 16 bits
# or without a meaning.
table() {
    local character
    echo case,step,set,type,name
    for character in {1..767} 65534 65535 128512 1114111; do
        printf -v character '\\U%08x' "$character"
        printf -v character %b "$character"
        echo "Static,Step-1,QVRLoadContainerLT,QVRPressure,\"a${character/\"/\"\"}.\""
    done
    echo 'Static,Step-1,QVRLoadContainerLT,QVRPressure,"]]>""<!-- &amp;"'
}

table | "$program" import - --output "names <&>%'#.json" >/dev/null
for document in "names <&>%'#.json" "$host"/examples/*.json; do
    check "schema of $document" conforms "$host/document.schema.json" "$document"
done
mkdir -p bad/empty
ln -s loop.json bad/loop.json
cp "$host/examples/rename-a-step.json" $'bad/\xfe.json'
cp "$host/examples/rename-a-step.json" $'bad/\xff.json'
for options in "" --deck "--deck --strict"; do
    for format in json sarif junit; do
        code=0
        # shellcheck disable=SC2086  # the options are words
        "$program" audit "$PWD/names <&>%'#.json" "names <&>%'#.json" "$host/examples" "$tests/transcripts" missing.json \
            $'bad/\xff.json' bad bad/empty \
            $options --format "$format" >"report.$format" 2>/dev/null || code=$?
        same "exit code of audit $options" 2 "$code"
    done
    check "json $options" conforms "$host/report.schema.json" report.json
    check "sarif $options" conforms "$sarif" report.sarif
    check "junit $options" conforms "$tests/junit.xsd" report.junit
    # Test cases are the features with findings, and one for each document without findings.
    same "counts and names of junit $options" false "$(xmllint --xpath 'boolean(//testsuite[@tests != count(testcase) or
        @failures != count(testcase/failure) or @errors != count(testcase/error) or
        testcase[@name = preceding-sibling::testcase/@name]])' report.junit)"
    findings=$(grep -c '"rule": ' report.json)
    same "findings in sarif $options" "$findings" "$(grep -c '"ruleId": ' report.sarif)"
done
finish
