# A user at the main window of another process, for checks in shell. Needs: wine_run, driver (drive_window.exe).

# Starts a user with these actions; finish_user tells whether all could be done.
start_user() {
  timeout 60 "$wine_run" "$driver" "$@" &
  user=$!
}
finish_user() { wait "$user"; }
