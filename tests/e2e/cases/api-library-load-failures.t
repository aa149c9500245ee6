The management library is looked for beside the host program. When it cannot
be loaded the tool ends the process at once, before any command: a missing
library or one without all three entries gives status 1 and the reason on
standard error; a library that creates no API object says so on standard
output and gives status 0.

  $ mkdir missing incomplete noobject
  $ cp "$ZEK_BIN/hostcli" "$ZEK_BIN/libzekcli.so" missing/
  $ missing/hostcli -zek version cli 2>&1 | sed "s|$HOME|HOME|g"
  Couldn't open HOME/missing//libhbaclient.so:  HOME/missing//libhbaclient.so: cannot open shared object file: No such file or directory
  $ missing/hostcli -zek version cli >/dev/null 2>&1
  [1]

  $ cp "$ZEK_BIN/hostcli" "$ZEK_BIN/libzekcli.so" incomplete/
  $ cp "$ZEK_BIN/../fixtures/hbaclient-no-final-release/libhbaclient.so" incomplete/
  $ incomplete/hostcli -zek version cli 2>&1 | sed "s|$HOME|HOME|g"
  Couldn't get   hbamgmtapi_final_release  from libhbaclient.so:  HOME/incomplete//libhbaclient.so: undefined symbol: hbamgmtapi_final_release
  $ incomplete/hostcli -zek version cli >/dev/null 2>&1
  [1]

  $ cp "$ZEK_BIN/hostcli" "$ZEK_BIN/libzekcli.so" noobject/
  $ cp "$ZEK_BIN/../fixtures/hbaclient-null-instance/libhbaclient.so" noobject/
  $ noobject/hostcli -zek version cli 2>/dev/null
  ERROR - HBAMGMT   API instance create failed
