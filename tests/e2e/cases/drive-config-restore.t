restore drive_config lets the adapter take over drives that carry the
configuration of another adapter, named by -owner in hexadecimal, as after
the adapter has been replaced. Configured ones join its cache pool.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hostcli -zek restore drive_config -zek=0 -owner=0x2000001B32D1DEAD -result=restore.dat
  [ Device 0 on local host ]
  
  Configuration restored successfully
  
  $ od -A d -t d4 -j 32 -N 12 restore.dat
  0000032           0           0
  0000040
  $ hostcli -zek list drive -zek=0 | sed -n '3,6p'
  Configured Drives (2 of 6)
      -drive=5000-C500-D1A0-0000
      -drive=5000-C500-D1A0-FF00
  
  $ hostcli -zek show drive -zek=0 -drive=5000-C500-D1A0-FF01 | sed -n '4,5p'
          Unconfigured
          Owner ID =       2000001B32D1A000
  $ hostcli -zek add drive -zek=0 -drive=5000-C500-D1A0-FF01 | tail -1
  Drive successfully added.
  $ hbasim export | grep 'restored from owner'
       "message": "Drive configuration of 2 drives restored from owner 2000001B32D1DEAD",

A leading 0x is read as strtoull reads it. The adapter keeps the change: a
second restore finds nothing left to take; neither does one that names the
adapter itself or an owner that no drive names, such as seventeen digits,
which strtoull reads as the largest number.

  $ hostcli -zek restore drive_config -zek=0 -owner=2000001B32D1DEAD
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek restore drive_config -zek=0 -owner=2000001B32D1A000
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek restore drive_config -zek=0 -owner=12345678901234567
  \r             \r*** Object not found (esc)
  [255]

An -owner that is not wholly a hexadecimal number gets a code of its own,
169, with no words from the command; an empty or missing one is refused by
the command line.

  $ hostcli -zek restore drive_config -zek=0 -owner=12G
  \r             \r*** The owner is not an adapter identifier in hexadecimal (esc)
  [169]
  $ hostcli -zek restore drive_config -zek=0 -owner=1.5
  \r             \r*** The owner is not an adapter identifier in hexadecimal (esc)
  [169]
  $ hostcli -zek restore drive_config -zek=0 -owner=
  *** ZEKCLI_PARSE_FAIL
      
      owner modifier requires a value
      Syntax: restore drive_config
  	-owner=<adapter id>
  	-zek=<adapter>
  
  [52]
  $ hostcli -zek restore drive_config -zek=0
  Error:  -owner modifier must be specified
    Command syntax:
      restore drive_config
  	-owner=<adapter id>
  	-zek=<adapter>
  
  Use "-?" on the command line for help

An adapter that stops answering once it has been found gets its code.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hbasim fault zek-new restoreDriveConfig 1006
  $ hostcli -zek restore drive_config -zek=0 -owner=2000001B32D1DEAD
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hostcli -zek list drive -zek=0 | sed -n '3p'
  Configured Drives (1 of 6)
