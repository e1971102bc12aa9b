#!/bin/sh
# Runs a program for Windows. Its output goes through a file: services that Wine starts beside it live on
# for minutes and would keep a pipe open.
output=$(mktemp) || exit 1
trap 'rm -f "$output"' EXIT
wine "$@" > "$output" 2>&1 < /dev/null
status=$?
cat "$output"
exit "$status"
