# What checks in shell share: their counts and their sum.
passed=0 failed=0

check() { # NAME COMMAND...
  local name=$1
  shift
  if "$@"; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "FAILED: $name"
  fi
}

# The last line of a check; fails where one has.
sum_up() {
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
}

windows_path() { printf 'Z:%s' "${1//\//\\}"; }
