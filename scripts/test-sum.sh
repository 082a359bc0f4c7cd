# Runs the tests of a preset through CTest and sums what each program says of itself: GoogleTest programs write a report with
# their counts, every other entry prints a line "N passed, N failed" or counts as one test.
passed=0
failed=0
skipped=0

count() { # passed failed name [skipped]
  passed=$((passed + $1))
  failed=$((failed + $2))
  skipped=$((skipped + ${4:-0}))
  printf '%6d passed, %d failed  %s%s\n' "$1" "$2" "$3" "${4:+ ($4 skipped)}"
}

# The attribute $2 of the report $1's first element.
attribute() { grep -o '<testsuites [^>]*' "$1" | grep -o " $2=\"[0-9]*\"" | tr -dc 0-9; }

# Wine's own services start with the first program and would hold on to that program's output until they end.
start_wine() {
  export WINEPREFIX=$PWD/build/wine
  scripts/wine-run wineboot >/dev/null 2>&1 </dev/null
  wineserver -p >/dev/null 2>&1 # stays until stop_wine
}

stop_wine() { wineserver -k >/dev/null 2>&1; }

run_preset() {
  local preset=$1 reports=$PWD/build/$1/reports
  rm -rf "$reports"
  mkdir -p "$reports"
  local drive= # Wine shows this system's root as drive Z:
  local jobs
  jobs=$(nproc)
  if [ "$preset" = windows ]; then # one screen and one registry for all
    drive=Z:
    jobs=1
  fi
  GTEST_OUTPUT="xml:$drive$reports/" GTEST_BRIEF=1 ctest --preset "$preset" -j "$jobs" --output-log "$reports/ctest.log" \
    --output-junit "$reports/ctest.xml" --verbose >/dev/null 2>&1
  local line
  while read -r line; do
    local name=${line#*name=\"}
    name=${name%%\"*}
    local status=${line#*status=\"}
    status=${status%%\"*}
    count_entry "$preset" "$reports" "$name" "$status"
  done < <(grep '<testcase ' "$reports/ctest.xml")
  grep -q '<testcase ' "$reports/ctest.xml" 2>/dev/null || count 0 1 "$preset: no tests ran"
  [ "$failed" -eq 0 ] || grep -E -A 12 'Failure|FAILED|Sanitizer|\*\*\*' "$reports/ctest.log" | head -n 200
}

# The last sum that the entry $2 printed: in the log $1 its lines begin with its number.
said_by() {
  local number
  number=$(sed -n "s/^ *Start *\([0-9]*\): $2\$/\1/p" "$1" | head -n 1)
  [ -z "$number" ] || grep "^$number: " "$1" | grep -oE '[0-9]+ passed, [0-9]+ failed' | tail -n 1
}

count_entry() { # preset reports name status
  local report=$2/$3.xml said
  if [ -f "$report" ]; then
    local bad
    bad=$(($(attribute "$report" failures) + $(attribute "$report" errors)))
    # A program that dies after its report was written (a leak, an exit code) has failed too.
    [ "$4" = run ] || [ "$bad" -gt 0 ] || bad=1
    local left
    left=$(grep -c 'result="skipped"' "$report")
    count $(($(attribute "$report" tests) - bad - left)) "$bad" "$1: $3" "${left#0}"
  elif said=$(said_by "$2/ctest.log" "$3") && [ -n "$said" ]; then
    count "${said%% *}" "$(echo "$said" | grep -oE '[0-9]+ failed' | tr -dc 0-9)" "$1: $3"
  elif [ "$4" = run ]; then
    count 1 0 "$1: $3"
  else
    count 0 1 "$1: $3"
  fi
}

print_sum() {
  [ "$skipped" -eq 0 ] && echo "$passed passed, $failed failed" || echo "$passed passed, $failed failed, $skipped skipped"
  [ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
}
