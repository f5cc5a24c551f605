#!/usr/bin/env bash
# What the tests call of the library's interface, programs must find in the shared library too: the tests link a static one
# that hides nothing. Usage: exports_test.sh TEST_OBJECTS STATIC_LIBRARY SHARED_LIBRARY
set -euo pipefail

names() { # of symbols, from what nm prints
    awk '{ print $NF }' | sort -u
}

called=$(comm -12 <(find "$1" -name '*_test*.cpp.o' -exec nm --undefined-only {} + | names) \
    <(nm --defined-only "$2" 2>/dev/null | names))
hidden=$(comm -23 <(echo "$called") <(nm -D --defined-only "$3" | names) | c++filt | grep -v -e 'quv::' -e '^$' || true)
if (($(wc -l <<<"$called") < 500)); then
    echo "found only few calls: wrong folder?" >&2
    exit 1
fi
if [[ -n "$hidden" ]]; then
    echo "not in the shared library:" >&2
    echo "$hidden" >&2
    exit 1
fi
