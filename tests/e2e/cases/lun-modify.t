modify lun grows or renames one data LUN, or changes its mirror. The data LUN
of device 0 is 50GB and named "scratch".

  $ T="-zek=0 -lun_number=0 -fc_target=2100-001B-32A1-0C00"

Nothing to change, sizes out of bounds, and combinations that the adapter
cannot apply at once are refused before anything is sent.

  $ hostcli -zek modify lun $T
  \r             \r*** ZEKCLI_PARSE_FAIL -- No change specified for the LUN.  Use -size=... or -name=... if you want to modify the specified LUN. (esc)
  [52]
  $ hostcli -zek modify lun $T -size=1001
  \r             \r*** ZEKCLI_PARSE_FAIL -- Insufficient storage resources -- size of new LUN must be 1000GB or less (esc)
  [52]
  $ hostcli -zek modify lun $T -size=0
  \r             \r*** ZEKCLI_PARSE_FAIL -- Size of new LUN must be at least 1GB (esc)
  [52]
  $ hostcli -zek modify lun $T -size=abc
  \r             \r*** ZEKCLI_PARSE_FAIL -- Size of new LUN must be at least 1GB (esc)
  [52]
  $ hostcli -zek modify lun $T -name=X -mirror=1
  \r             \r*** ZEKCLI_PARSE_FAIL -- Not allow changing LUN (size, name) and mirror at the same time. (esc)
  [52]
  $ hostcli -zek modify lun $T -size=60 -remove_mirror
  \r             \r*** ZEKCLI_PARSE_FAIL -- Not allow changing LUN (size, name) and mirror at the same time. (esc)
  [52]
  $ hostcli -zek modify lun $T -mirror=1 -remove_mirror
  \r             \r*** ZEKCLI_PARSE_FAIL -- -mirror and -remove_mirror keywords cannot be combined (esc)
  [52]
  $ hostcli -zek modify lun $T -mirror=nosuch
  \r             \r*** Object not found (esc)
  [255]

The largest size passes the command's own check and goes to the adapter,
which here has not the room.

  $ hostcli -zek modify lun $T -size=1000
  [ Device 0 on local host ]
  
  \r             \r*** Not enough free SSD storage for the request (esc)
  [255]

The LUN must be named, and be one.

  $ hostcli -zek modify lun -zek=0 -fc_target=2100-001B-32A1-0C00 -name=X
  \r             \r*** ZEKCLI_PARSE_FAIL --  LUN number is required for LUN:  " -fc_target=2100-001B-32A1-0C00" (esc)
  [52]

Size and name go to the adapter together; another process then shows both.

  $ hostcli -zek modify lun $T -size=60 -name=bigger -result=mod.dat
  [ Device 0 on local host ]
  
  Successfully modified LUN  2100-001B-32A1-0C00 -lun_number=0
  
  $ wc -c < mod.dat
  40
  $ hostcli -zek show lun $T | grep -e 'local LUN' -e 'Symbolic'
      ZEK local LUN, Size = 60GB, (125829120 blocks)
      Symbolic Name = "bigger"

The name alone keeps the size; the size alone keeps the name.

  $ hostcli -zek modify lun $T -name=renamed > /dev/null
  $ hostcli -zek modify lun $T -size=70 > /dev/null
  $ hostcli -zek show lun $T | grep -e 'local LUN' -e 'Symbolic'
      ZEK local LUN, Size = 70GB, (146800640 blocks)
      Symbolic Name = "renamed"

A SAN LUN has no data LUN size, so a name change sends its own byte size, and
the adapter decides; an empty size would be 0 there.

  $ hostcli -zek modify lun -zek=0 -lun_number=1 -fc_target=5006-0160-39A0-1122 -vpgindex=1 -name=foo
  [ Device 0 on local host ]
  
  \r             \r*** Invalid argument (esc)
  [255]

A data LUN of another adapter, seen through this one, is that adapter's to
change.

  $ hbasim reset $TESTDIR/scenarios/lun-plumbing.json > /dev/null
  $ hostcli -zek modify lun -zek=0 -lun_number=40 -fc_target=5006-0160-3BE0-1234 -name=x
  \r             \r*** The LUN is not a SAN data LUN (esc)
  [255]
  $ hostcli -zek modify lun -zek=1 -lun_number=40 -fc_target=5006-0160-3BE0-1234 -name=mine
  [ Device 1 on local host ]
  
  Successfully modified LUN  5006-0160-3BE0-1234 -lun_number=40
  

The owner can mirror its data LUN on another adapter and take the mirror
away again; show lun tells the mirror state and the Mirror state bit.

  $ L="-lun_number=40 -fc_target=5006-0160-3BE0-1234"
  $ hostcli -zek modify lun -zek=1 $L -mirror=0
  [ Device 1 on local host ]
  
  Successfully modified LUN  5006-0160-3BE0-1234 -lun_number=40
  
  $ hostcli -zek show lun -zek=1 $L | sed -n '7,8p'
  Primary Mirror
      LUN State  = 0x444801 ( Online, Mapped, Local, Storage Media SSD, Mirror)
  $ hostcli -zek modify lun -zek=1 $L -remove_mirror > /dev/null
  $ hostcli -zek show lun -zek=1 $L | sed -n '7p'
      LUN State  = 0x44801 ( Online, Mapped, Local, Storage Media SSD)
