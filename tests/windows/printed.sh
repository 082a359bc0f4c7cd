# What the checks of printed documents share.
source "$(dirname "${BASH_SOURCE[0]}")/checks.sh"

# The documents of a project that the print server has made, in their order.
documents_of() { # PROJECT-NAME
  grep -la "Title(Stormwater Harvesting Report - $1)" "$PRINTED"/*.pdf 2>/dev/null | sort -V
}
wait_for_documents() { # PROJECT-NAME COUNT
  local tries
  for ((tries = 0; tries < 600; tries++)); do
    [ "$(documents_of "$1" | wc -l)" -ge "$2" ] && return 0
    sleep 0.1
  done
  return 1
}

# Hyphen and semicolon come back from PostScript as the soft hyphen and the Greek question mark.
text_of() { pdftotext "$1" "$2" - | sed 's/\xc2\xad/-/g; s/\xcd\xbe/;/g'; } # OPTION FILE
lines() { text_of -layout "$1" | tr -s ' '; }
words() { text_of -raw "$1" | tr -s ' \n\f' '\n'; } # one on each line
