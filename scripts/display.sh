# A screen in memory with a window manager, for windows that nobody looks at.

# Starts both on a display of their own and sets DISPLAY. Ends with 1 where they do not come up.
start_display() {
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 3840x2400x24 -nolisten tcp 3>"$number_file" >/dev/null 2>&1 </dev/null &
  display_pid=$!
  local tries
  for ((tries = 0; tries < 100; tries++)); do
    [ -s "$number_file" ] && break
    kill -0 "$display_pid" 2>/dev/null || break
    sleep 0.1
  done
  local number
  number=$(tr -dc 0-9 <"$number_file")
  rm -f "$number_file"
  if [ -z "$number" ]; then
    echo "No display could be started (Xvfb)." >&2
    return 1
  fi
  export DISPLAY=:$number
  openbox >/dev/null 2>&1 </dev/null &
  openbox_pid=$!
}

stop_display() {
  kill "$openbox_pid" "$display_pid" 2>/dev/null
  wait "$openbox_pid" "$display_pid" 2>/dev/null
}
