Device work on the local host needs root. A user without it is refused with
the parse failure code 52 and, deliberately, no text at all; asking for the
version needs no root.

  $ chmod 755 "$HOME"
  $ asnobody() { setpriv --reuid=65534 --regid=65534 --clear-groups "$@"; }
  $ asnobody hostcli -zek list adapter
  [52]
  $ asnobody hostcli -zek show lun -lun_number=0
  [52]
  $ asnobody hostcli -zek version cli -name
  2.103.6.4.0.0 (no-eol)

Help touches no device either:

  $ asnobody hostcli -zek show lun -help | head -n 2
  
  Syntax: show lun

The refused command changed nothing, so no preferences were written for it:

  $ ls
