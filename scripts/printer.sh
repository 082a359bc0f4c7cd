# A print server with one queue, "PDF", that turns every job into a PDF file: for tests of real printing. Everything that it
# writes lies in the folder given; the system's own print server is left alone.

# start_printer FOLDER: starts it and sets CUPS_SERVER and PRINTED, the folder in which the files appear. Ends with 1 where it
# does not come up. A socket's path must be short, so it lies in a folder of its own.
start_printer() {
  local root=$1
  rm -rf "$root"
  mkdir -p "$root"/{bin/backend,cache,spool,log,printed,ppd,ssl}
  printer_sockets=$(mktemp -d)
  chmod 755 "$printer_sockets"
  cat >"$root/cupsd.conf" <<END
Listen $printer_sockets/cups
Browsing Off
DefaultAuthType None
WebInterface No
LogLevel warn
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
END
  cat >"$root/cups-files.conf" <<END
ServerRoot $root
ServerBin $root/bin
CacheDir $root/cache
RequestRoot $root/spool
TempDir $root/spool
StateDir $printer_sockets
AccessLog $root/log/access
ErrorLog $root/log/error
PageLog $root/log/page
SystemGroup root lpadmin
END
  # The last step of a job: PostScript to "NUMBER.pdf". cups-pdf would do the same, in a folder that only the system's own
  # configuration names.
  cat >"$root/bin/backend/pdf" <<END
#!/bin/sh
[ \$# -ge 5 ] || { echo 'direct pdf:/ "PDF" "PDF"'; exit 0; }
cd "$root/printed" && cat "\${6:--}" | gs -q -dBATCH -dNOPAUSE -dSAFER -sDEVICE=pdfwrite -sOutputFile="\$1.part" - >&2 &&
  mv "\$1.part" "\$1.pdf"
END
  chmod 700 "$root/bin/backend/pdf"
  ln -s /usr/lib/cups/filter /usr/lib/cups/daemon "$root/bin/"
  /usr/sbin/cupsd -f -c "$root/cupsd.conf" -s "$root/cups-files.conf" >/dev/null 2>&1 </dev/null &
  printer_pid=$!
  export CUPS_SERVER=$printer_sockets/cups PRINTED=$root/printed
  local tries
  for ((tries = 0; tries < 100; tries++)); do
    lpstat -r 2>/dev/null | grep -q 'is running' && break
    kill -0 "$printer_pid" 2>/dev/null || break
    sleep 0.1
  done
  if ! add_queue "$root" PDF || ! lpadmin -d PDF; then
    echo "No print server could be started (cupsd); see $root/log." >&2
    stop_printer
    return 1
  fi
}

# add_queue FOLDER NAME: of Letter paper with a quarter of an inch along its edges that the printer cannot reach, as the usual
# ones have it.
add_queue() {
  sed -e 's|^[*]ImageableArea Letter/.*|*ImageableArea Letter/US Letter: "18 18 594 774"|' \
    -e 's|^[*]ImageableArea A4/.*|*ImageableArea A4/A4: "18 18 577 824"|' \
    -e 's|^[*]DefaultPageSize:.*|*DefaultPageSize: Letter|' \
    /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd >"$1/$2.ppd"
  lpadmin -p "$2" -E -v pdf:/ -P "$1/$2.ppd" 2>>"$1/log/lpadmin"
}

stop_printer() {
  kill "$printer_pid" 2>/dev/null
  wait "$printer_pid" 2>/dev/null
  rm -rf "$printer_sockets"
  unset CUPS_SERVER PRINTED
}
