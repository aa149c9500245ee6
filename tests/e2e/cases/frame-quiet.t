-quiet silences the console but not the text file; -show_only_error keeps
only the failure messages.

  $ hostcli -zek list adapter > console.txt
  $ hostcli -zek list adapter -quiet
  $ hostcli -zek list adapter -quiet -textfile
  $ cmp console.txt list_adapter.log

A failure under -quiet is silent too, and its code comes back:

  $ hostcli -zek retval cli -rv=54 -quiet
  [54]

-show_only_error: nothing for a success, the message once for a failure.

  $ hostcli -zek list adapter -show_only_error
  $ hostcli -zek retval cli -rv=54 -show_only_error
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI Command execution failed (esc)
  [54]

With a text file as well, the message lands in it twice:

  $ hostcli -zek retval cli -rv=54 -show_only_error -textfile=errors.txt >/dev/null
  [54]
  $ cat errors.txt
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI Command execution failed (esc)
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI Command execution failed (esc)

-echo shows the command line first, but not under -quiet:

  $ hostcli -zek version cli -name -echo
  version cli -name -echo 
  2.103.6.4.0.0 (no-eol)
  $ hostcli -zek retval cli -rv=0 -echo -quiet
