#!/usr/bin/env bash
# refresh_rates_test.sh SCRIPT TOOL FEEDS: the rates script republishes a good feed with
# DKK fifth, leaves the served file alone for every bad one, and always exits 0.
set -euo pipefail
script="$1" tool="$2" feeds="$3"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export ZAFRO_REFRESH_TOOL="$tool" ZAFRO_RATES_FILE="$work/served.xml"
failures=0
check() { if ! eval "$2"; then echo "FAILED: $1"; failures=$((failures + 1)); fi; }

echo "old" >"$ZAFRO_RATES_FILE"
for bad in no-dkk.xml truncated.xml error-page.html empty.xml missing.xml; do
  "$script" "$feeds/$bad" 2>"$work/err"
  check "$bad leaves the served file" '[ "$(cat "$ZAFRO_RATES_FILE")" = old ]'
  check "$bad says why" '[ -s "$work/err" ]'
done
# Nothing listens on port 9 of 127.0.0.1: a download that fails changes nothing either.
"$script" "http://127.0.0.1:9/eurofxref-daily.xml" 2>"$work/err"
check "an unreachable server leaves the served file" '[ "$(cat "$ZAFRO_RATES_FILE")" = old ]'

"$script" "$feeds/today.xml"
fifth="$(grep -o 'currency="[A-Z]*"' "$ZAFRO_RATES_FILE" | sed -n 5p)"
check "a good feed is served with DKK fifth" '[ "$fifth" = "currency=\"DKK\"" ]'
check "no temporary file is left beside it" '[ "$(ls "$work" | grep -c served)" -eq 1 ]'
echo "$((13 - failures)) passed, $failures failed"
[ "$failures" -eq 0 ]
