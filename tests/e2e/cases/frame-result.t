-result appends one binary record per status report to <action>_<item>.dat
in the working directory, or to the file it names: a header that announces
32 bytes, four bytes that we write as zeros, the library version, action,
item, status, and a terminating 0. The file grows; it is never replaced.

  $ hostcli -zek list adapter -result -quiet
  $ od -A d -t d4 list_adapter.dat
  0000000          32           0           2         103
  0000016           6           4          16           1
  0000032           0           0
  0000040
  $ hostcli -zek list adapter -result >/dev/null
  $ od -A d -t d4 list_adapter.dat | tail -n 1
  0000080
  $ cmp -n 40 list_adapter.dat <(tail -c 40 list_adapter.dat)

A given name:

  $ hostcli -zek list adapter -result=given.dat -quiet
  $ cmp given.dat <(head -c 40 list_adapter.dat)

A result file that cannot be opened:

  $ hostcli -zek list adapter -result=/nonexistent/r.dat -quiet
  [55]
