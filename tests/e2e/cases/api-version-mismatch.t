A management library of another interface generation is refused when the
tool starts: the host sees status 51 and the reason on standard output. The
fixture library reports version 2.103.5.0; the client line keeps its 0 in
the third place although 6 is what the check demands.

  $ mkdir app
  $ cp "$ZEK_BIN/hostcli" "$ZEK_BIN/libzekcli.so" app/
  $ cp "$ZEK_BIN/../fixtures/hbaclient-old-version/libhbaclient.so" app/
  $ app/hostcli -zek version cli
  HBA Management API Library version 2.103.5.0 is not compatible with this client
  (Client has interface for 2.103.0.0)
  [51]
  $ app/hostcli -zek version cli 2>/dev/null | wc -l
  2
