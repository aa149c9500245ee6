create lun makes a data LUN on the adapter's own drives. Sizes are whole
gigabytes, at least 1; anything that does not read as such a number counts as
0. Where the size is too large for the pool, the adapter says so.

  $ hostcli -zek create lun -zek=0 -size=0
  \r             \r*** ZEKCLI_PARSE_FAIL -- Size of new LUN must be at least 1GB (esc)
  [52]
  $ hostcli -zek create lun -zek=0 -size=abc
  \r             \r*** ZEKCLI_PARSE_FAIL -- Size of new LUN must be at least 1GB (esc)
  [52]
  $ hostcli -zek create lun -zek=0 -size=-3
  \r             \r*** ZEKCLI_PARSE_FAIL -- Size of new LUN must be at least 1GB (esc)
  [52]
  $ hostcli -zek create lun -zek=0 -size=5000
  \r             \r*** Not enough free SSD storage for the request (esc)
  [255]
  $ hostcli -zek create lun -zek=0 -size=99999999999999999999
  \r             \r*** Not enough free SSD storage for the request (esc)
  [255]

An empty size is refused before the command runs, as the keyword needs a value.

  $ hostcli -zek create lun -zek=0 -size= 2>&1 | head -3
  *** ZEKCLI_PARSE_FAIL
      
      size modifier requires a value

A mirror adapter that cannot be found ends the command with the selection's
code; an adapter without the data LUN feature refuses.

  $ hostcli -zek create lun -zek=0 -size=20 -mirror=nosuch
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek create lun -zek=1 -size=5
  \r             \r*** The feature is not supported by this adapter (esc)
  [255]
  $ hostcli -zek list lun | grep -c 2100-001B-32A1-0C00
  1

A LUN that is made prints its WWULN, and its result record has no data.

  $ hostcli -zek create lun -zek=0 -size=20 -name=newlun -result=made.dat
  [ Device 0 on local host ]
  
  LUN created successfully,  -lun_wwuln=2000-001B-32A1-0C00-0000-0000-0000-0002
  
  
  $ wc -c < made.dat
  40
  $ od -A d -t d4 -j 24 -N 16 made.dat
  0000024           3          25           0           0
  0000040

Another process sees it: list lun shows its path on the adapter's internal
target, and show lun its name and size.

  $ hostcli -zek list lun | grep 2100-001B-32A1-0C00
  -lun_number=0 -fc_target=2100-001B-32A1-0C00   -zek=2000001B32A10C00
  -lun_number=1 -fc_target=2100-001B-32A1-0C00   -zek=2000001B32A10C00
  $ hostcli -zek show lun -zek=0 -lun_number=1 -fc_target=2100-001B-32A1-0C00 -vpgindex=1 | grep -e 'local LUN' -e 'Symbolic'
      ZEK local LUN, Size = 20GB, (41943040 blocks)
      Symbolic Name = "newlun"
