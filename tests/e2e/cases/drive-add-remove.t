add drive puts a free drive into the adapter's cache pool and remove drive
takes one out. The drive is named by -drive, as "list drive" shows it.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hostcli -zek add drive -zek=0 -drive=5000-C500-D1A0-0001 -result=add.dat
  [ Device 0 on local host ]
  
  -drive=5000-C500-D1A0-0001
  
  Drive successfully added.
  $ od -A d -t d4 -j 32 -N 12 add.dat
  0000032           0           0
  0000040
  $ hostcli -zek list drive -zek=0 | sed -n '3,6p'
  Configured Drives (2 of 6)
      -drive=5000-C500-D1A0-0000
      -drive=5000-C500-D1A0-0001
  
  $ hostcli -zek remove drive -zek=0 -drive=5000c500d1a00001
  [ Device 0 on local host ]
  
  -drive=5000-C500-D1A0-0001
  
  Drive successfully removed.
  $ hostcli -zek list drive -zek=0 | sed -n '3,4p'
  Configured Drives (1 of 6)
      -drive=5000-C500-D1A0-0000

Or as the LUN through which the adapter presents it: by its WWULN, its
serial number, or its place on the internal target. The text names the
drive by the LUN's WWULN.

  $ hostcli -zek add drive -zek=0 -lun_wwuln=5000C500D1A00001
  [ Device 0 on local host ]
  
  -drive=5000-C500-D1A0-0001
  
  Drive successfully added.
  $ hostcli -zek remove drive -zek=0 -lun_serial=SNEW0001 | tail -1
  Drive successfully removed.
  $ hostcli -zek add drive -zek=0 -fc_target=2100-001B-32D1-A000 -lun_number=257 -vpgindex=1 | tail -1
  Drive successfully added.
  $ hostcli -zek remove drive -zek=0 -fc_target=2100-001B-32D1-A000 -lun_number=257 | tail -1
  Drive successfully removed.

A value of -drive that the adapter does not know as a drive's name gets a
second chance as the drive's SSD identifier, its serial number, taken as
text. The text shows the name as it was read: here the letter was passed
over and the digits read as a binary name.

  $ hbasim reset > /dev/null
  $ hostcli -zek add drive -zek=0 -drive=S01B32A10C003
  [ Device 0 on local host ]
  
  -drive=01B3-2A10-C003
  
  Drive successfully added.
  $ hostcli -zek list drive -zek=0 | sed -n '3,7p'
  Configured Drives (4 of 4)
      -drive=5000-C532-A10C-0000
      -drive=5000-C532-A10C-0001
      -drive=5000-C532-A10C-0002
      -drive=5000-C532-A10C-0003
  $ hostcli -zek remove drive -zek=0 -drive=S01B32A10C003 | tail -1
  Drive successfully removed.

The adapter refuses what it cannot do, and the drives stay as they were: a
drive already in the pool, or not in it; a pool that would no longer hold
the cache pool and the data LUNs (156); an offline or locked drive; a drive
that carries another adapter's configuration; a name it does not know.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hostcli -zek add drive -zek=0 -drive=5000-C500-D1A0-0000
  \r             \r*** The drive is already a member of the cache pool (esc)
  [255]
  $ hostcli -zek remove drive -zek=0 -drive=5000-C500-D1A0-0001
  \r             \r*** The drive is not a member of the cache pool (esc)
  [255]
  $ hostcli -zek remove drive -zek=0 -drive=5000-C500-D1A0-0000
  \r             \r*** The requested pool size is out of range for the configured drives (esc)
  [156]
  $ hostcli -zek add drive -zek=0 -drive=5000-C500-D1A0-0009
  \r             \r*** The drive is offline or security locked (esc)
  [255]
  $ hostcli -zek add drive -zek=0 -drive=SLOT-7-SSD
  \r             \r*** The drive is offline or security locked (esc)
  [255]
  $ hostcli -zek add drive -zek=0 -drive=5000-C500-D1A0-FF01
  \r             \r*** The drive carries the configuration of another adapter (esc)
  [255]
  $ hostcli -zek remove drive -zek=0 -drive=5000-C500-D1A0-FF00
  \r             \r*** The drive carries the configuration of another adapter (esc)
  [255]
  $ hostcli -zek add drive -zek=0 -drive=5000C500D1A0001
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek add drive -zek=0 -drive=ABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABAB
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek add drive -zek=0 -drive=:::
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek add drive -zek=0 -drive=not-a-drive
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek list drive -zek=0 | sed -n '3,4p'
  Configured Drives (1 of 6)
      -drive=5000-C500-D1A0-0000

A LUN that is not one of the adapter's drives names no drive; a LUN named in
full that the adapter does not have names none either (1100); LUN keywords
that name no single LUN fail as LUN commands do.

  $ hbasim reset > /dev/null
  $ hostcli -zek add drive -zek=0 -lun_wwuln=600A0B80002A1C3D0000000052B2A002
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek add drive -zek=0 -lun_wwuln=5000C532A10D0003
  \r             \r*** ZEKCLI_PARSE_FAIL -- LUN not found for "ASCII WWULN 5000C532A10D0003" (esc)
  [52]
  $ hostcli -zek add drive -zek=0 -fc_target=2100-001B-32A1-0C00 -lun_number=999 -vpgindex=1
  \r             \r*** Invalid argument (esc)
  [255]
  $ hostcli -zek add drive -zek=0
  \r             \r*** ZEKCLI_PARSE_FAIL --  LUN number is required for LUN:  "" (esc)
  [52]
  $ hostcli -zek remove drive -zek=0 -fc_target=2100-001B-32A1-0C00
  \r             \r*** ZEKCLI_PARSE_FAIL --  LUN number is required for LUN:  " -fc_target=2100-001B-32A1-0C00" (esc)
  [52]
  $ hostcli -zek add drive -zek=0 -lun_wwuln=X -lun_serial=Y
  \r             \r*** ZEKCLI_PARSE_FAIL -- Cannot use more than one of -lun_wwuln, -lun_serial, or -lun_any_wwuln (esc)
  [52]

An adapter that stops answering once it has been found gets its code; the
second chance asks it again.

  $ hbasim fault zek-prod-a addDriveToPool 1006
  $ hostcli -zek add drive -zek=0 -lun_wwuln=5000C532A10C0003
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hbasim fault zek-prod-a removeDriveFromPool 1006
  $ hbasim fault zek-prod-a removeDriveFromPoolBySsdId 1006
  $ hostcli -zek remove drive -zek=0 -drive=5000C532A10C0002
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hbasim fault zek-prod-a addDriveToPool 1006
  $ hostcli -zek add drive -zek=0 -drive=5000C532A10C0003 | tail -1
  Drive successfully added.
  $ hostcli -zek list drive -zek=0 | sed -n '3p'
  Configured Drives (4 of 4)

The drives presented as LUNs are the adapter's own: they are hidden from the
LUN listings, and every LUN and cache operation refuses them.

  $ hostcli -zek list lun -zek=0 | grep -c 2100-001B-32A1-0C00
  0
  [1]
  $ hostcli -zek show lun -zek=0 -lun_wwuln=5000C532A10C0003
  [ Device 0 on local host ]
  
  $ hostcli -zek show lun | grep -c 5000-C532
  0
  [1]
  $ hostcli -zek enable cache -zek=0 -lun_wwuln=5000C532A10C0003 -mode=read_write_through
  \r             \r*** The LUN is not a SAN data LUN (esc)
  [255]
  $ hostcli -zek lock cache -zek=0 -fc_target=2100-001B-32A1-0C00 -lun_number=256 -vpgindex=1 -lun_start_lba=0 -lun_size_lba=8
  \r             \r*** The LUN is not a SAN data LUN (esc)
  [255]
  $ hostcli -zek disable cache -zek=0 -lun_wwuln=5000C532A10C0003
  \r             \r*** The LUN is not a SAN data LUN (esc)
  [255]
  $ hostcli -zek remove lun -zek=0 -lun_serial=S01B32A10C000
  \r             \r*** The LUN is not a SAN data LUN (esc)
  [255]

A result record that cannot be written makes the command fail with 55; the
change itself is made.

  $ hostcli -zek remove drive -zek=0 -drive=5000C532A10C0003 -result=/nonexistent/r.dat -quiet
  [55]
  $ hostcli -zek list drive -zek=0 | sed -n '3p'
  Configured Drives (3 of 4)
