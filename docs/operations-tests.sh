#!/usr/bin/env bash
# Writes the examples of docs/operations.md as tests. A test has the name of the operation in the heading above it. The
# first example is the document with which each other one begins.
# Usage: operations-tests.sh PAGE SOURCE
set -euo pipefail
awk '
    BEGIN { print "#include \"docs/OperationsExample.h\"\n\nclass OperationsPage : public ::testing::Test {\nprotected:" }
    /^```/ { if (on) print count++ ? "}" : "};"; on = $0 == "```cpp"; if (on && count) {
        print "\nTEST_F(OperationsPage, " name (++uses[name] > 1 ? uses[name] : "") ") {" }; next }
    on { print; next }
    /^#/ { sub(/[(,].*/, ""); gsub(/[^A-Za-z0-9_ ]/, ""); name = ""
        for (i = 1; i <= NF; ++i) name = name toupper(substr($i, 1, 1)) substr($i, 2) }
    END { if (count < 30) { print FILENAME " has only " count " examples" >"/dev/stderr"; exit 1 } }' "$1" >"$2"
