version adapter compares the adapter's firmware version with -compare.

  $ hostcli -zek version adapter -zek=0 -compare=4.2.1.7 -result
  Confirmed:  Adapter firmware version is 4.2.1.7
  $ od -A d -t d4 version_adapter.dat | sed -n 3p
  0000032           0           0

A different version is a failed test, not a failed command: the command
ends with 0 and only the result record carries 1000.

  $ hostcli -zek version adapter -zek=0 -compare=1.0 -result=failed.dat
  FAILED:  Tested adapter firmware version for 1.0, but the adapter firmware is 4.2.1.7
  $ od -A d -t d4 failed.dat | sed -n 3p
  0000032        1000           0

The comparison is exact: a prefix of the version is not the version.

  $ hostcli -zek version adapter -zek=0 -compare=4.2.1
  FAILED:  Tested adapter firmware version for 4.2.1, but the adapter firmware is 4.2.1.7
  $ hostcli -zek version adapter -zek=0 -compare=4.2.1.7x
  FAILED:  Tested adapter firmware version for 4.2.1.7x, but the adapter firmware is 4.2.1.7
