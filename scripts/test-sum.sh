# Runs the tests of a preset through CTest and sums what each program says of itself: GoogleTest programs write a report with
# their counts, every other entry prints a line "N passed, N failed" (", N skipped" may follow) or counts as one test.
# Several may count at the same time: a sum is kept in a file.
sums=$(mktemp)
trap 'rm -f "$sums"' EXIT

count() { # passed failed name [skipped]
  echo "$1 $2 ${4:-0}" >>"$sums"
  printf '%6d passed, %d failed%s  %s\n' "$1" "$2" "$([ "${4:-0}" -eq 0 ] || echo ", $4 skipped")" "$3"
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

# run_preset PRESET PART [OPTIONS OF CTEST...]: the tests of a test preset that the options choose; their reports lie in
# build/<preset>/reports/<part>.
run_preset() {
  local preset=$1 build=${1%-nightly} part=$2
  shift 2
  local reports=$PWD/build/$build/reports/$part
  rm -rf "$reports"
  mkdir -p "$reports"
  local drive= # Wine shows this system's root as drive Z:
  local jobs
  jobs=$(nproc)
  if [ "$build" = windows ]; then # one screen and one registry for all
    drive=Z:
    jobs=1
  fi
  GTEST_OUTPUT="xml:$drive$reports/" GTEST_BRIEF=1 ctest --preset "$preset" -j "$jobs" --output-log "$reports/ctest.log" \
    --output-junit "$reports/ctest.xml" --verbose "$@" >/dev/null 2>&1
  if ! grep -q '<testcase ' "$reports/ctest.xml" 2>/dev/null; then
    count 0 1 "$build: no tests ran"
    return
  fi
  local counted
  counted=$(entries "$reports/ctest.xml" | while read -r name status; do count_entry "$build" "$reports" "$name" "$status"; done)
  echo "$counted"
  ! grep -qvE ' 0 failed' <<<"$counted" || grep -E -A 12 'Failure|FAILED|Sanitizer|\*\*\*' "$reports/ctest.log" | head -n 200
}

# "NAME STATUS" for each entry of CTest's report. One that says itself that it cannot run here is "skipped"; CTest calls it "notrun"
# like one whose program is missing.
entries() {
  awk '
    function attribute(name) { match($0, " " name "=\"[^\"]*\""); return substr($0, RSTART + length(name) + 3, RLENGTH - length(name) - 4) }
    /<testcase / { flush(); name = attribute("name"); status = attribute("status") }
    /<skipped message="SKIP_RETURN_CODE/ { status = "skipped" }
    function flush() { if (name != "") print name, status }
    END { flush() }' "$1"
}

# The last sum that the entry $2 printed: in the log $1 its lines begin with its number.
said_by() {
  local number
  number=$(sed -n "s/^ *Start *\([0-9]*\): $2\$/\1/p" "$1" | head -n 1)
  [ -z "$number" ] || grep "^$number: " "$1" | grep -oE '[0-9]+ passed, [0-9]+ failed(, [0-9]+ skipped)?' | tail -n 1
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
    count $(($(attribute "$report" tests) - bad - left)) "$bad" "$1: $3" "$left"
  elif [ "$4" = skipped ]; then
    count 0 0 "$1: $3" 1
  elif said=$(said_by "$2/ctest.log" "$3") && [ -n "$said" ]; then
    local numbers
    read -ra numbers < <(tr -c '0-9\n' ' ' <<<"$said")
    # An entry that failed without counting it has failed all the same.
    [ "$4" = run ] || [ "${numbers[1]}" -gt 0 ] || numbers[1]=1
    count "${numbers[0]}" "${numbers[1]}" "$1: $3" "${numbers[2]:-0}"
  elif [ "$4" = run ]; then
    count 1 0 "$1: $3"
  else
    count 0 1 "$1: $3"
  fi
}

# The sum over all that was counted; fails where a test failed or none passed.
print_sum() {
  awk '{ passed += $1; failed += $2; skipped += $3 }
    END {
      printf "%d passed, %d failed%s\n", passed, failed, skipped ? ", " skipped " skipped" : ""
      exit failed > 0 || passed == 0
    }' "$sums"
}
