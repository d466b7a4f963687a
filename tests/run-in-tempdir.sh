#!/bin/sh
# Runs a test program in a new, empty working directory and removes it afterwards.
dir=$(mktemp -d) || exit 1
cd "$dir" || exit 1
"$@"
status=$?
cd / && rm -rf "$dir"
exit $status
