enable beacon and disable beacon switch the beacon of one port, counted
from 1 as on the adapter's bracket. They show the banner and write no
result record.

  $ hostcli -zek enable beacon -zek=0 -port=2 -result
  [ Device 0 on local host ]
  
  Beacon of FC Port 2 has been enabled successfully.
  $ hostcli -zek disable beacon -zek=0 -port=1 -result
  [ Device 0 on local host ]
  
  Beacon of FC Port 1 has been disabled successfully.
  $ test -e enable_beacon.dat || test -e disable_beacon.dat || echo "no result records"
  no result records

The port range is the adapter's own, 1 to its number of ports:

  $ hostcli -zek enable beacon -zek=0 -port=0
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 2 (esc)
  [52]
  $ hostcli -zek disable beacon -zek=1 -port=3
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 2 (esc)
  [52]
  $ hostcli -zek enable beacon -zek=1 -port=two
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 2 (esc)
  [52]

A refusal of the library is passed on:

  $ hbasim fault 2000001B32A10C00 setBeacon 1000 >/dev/null
  $ hostcli -zek enable beacon -zek=0 -port=1
  \r             \r*** General failure (esc)
  [255]
