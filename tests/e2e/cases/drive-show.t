show drive without keywords shows every drive by pool, each with its record
and the ways the adapter reaches it: every SSD is also a LUN of the
adapter's internal target, from LUN number 256 on.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hostcli -zek show drive -zek=0
  [ Device 0 on local host ]
  
  Configured Drives (1 of 6)
      -drive=5000-C500-D1A0-0000
          Configured
          Owner ID =       2000001B32D1A000
          State =          Online
          Size =           186.26GB
          Vendor ID =      SIMSSD
          Product ID =     FLASH-400
          Revision =       1.00
          Serial Number =  SNEW0000
  
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=256
  
  
  
  Unconfigured Drives (5 of 6)
      -drive=5000-C500-D1A0-0001
          Unconfigured
          Owner ID =       2000001B32D1A000
          State =          Online
          Size =           186.26GB
          Vendor ID =      SIMSSD
          Product ID =     FLASH-400
          Revision =       1.00
          Serial Number =  SNEW0001
  
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=257
  
      -drive=5000-C500-D1A0-FF00
          Configured
          Owner ID =       2000001B32D1DEAD
          State =          Online
          Size =           186.26GB
          Vendor ID =      SIMSSD
          Product ID =     FLASH-400
          Revision =       1.00
          Serial Number =  SOLD0000
  
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=258
  
      -drive=5000-C500-D1A0-FF01
          Unconfigured
          Owner ID =       2000001B32D1DEAD
          State =          Online
          Size =           186.26GB
          Vendor ID =      SIMSSD
          Product ID =     FLASH-400
          Revision =       1.00
          Serial Number =  SOLD0001
          ( External Drive  PCIE SSD )
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=259
  
      -drive=5000-C500-D1A0-0009
          Unconfigured
          Owner ID =       2000001B32D1A000
          State =          Offline
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=260
  
      -drive=SLOT-7-SSD
          Unconfigured
          Owner ID =       2000001B32D1A000
          State =          Online
          Size =           93.13GB
          Vendor ID =      SIMSSD
          Product ID =     FLASH-400
          Revision =       1.00
          Serial Number =  SLOCK007
          ( Internal Drive  Security Locked  PSST and Drive Identity Conflict )
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=261
  
  
  
  

The result record holds every drive's record: header, then per drive a size
of 5788 and the 5784-byte image (the owner at offset 96 of the image).

  $ hostcli -zek show drive -zek=0 -result=all.dat -quiet
  $ wc -c < all.dat
  34780
  $ od -A d -t d4 -j 32 -N 20 all.dat
  0000032           0       34740           8           6
  0000048        5788
  0000052
  $ od -A d -t x8 -j 148 -N 8 all.dat
  0000148 2000001b32d1a000
  0000156
  $ od -A d -t d4 -j 5836 -N 4 all.dat
  0005836        5788
  0005840

One drive by -drive, as "list drive" shows it or in any other way of
writing its world-wide name. Its block holds that drive alone, but its
count is that of all the adapter's drives.

  $ hostcli -zek show drive -zek=0 -drive=5000c500d1a0ff01 -result=one.dat
  [ Device 0 on local host ]
  
  -drive=5000-C500-D1A0-FF01
          Unconfigured
          Owner ID =       2000001B32D1DEAD
          State =          Online
          Size =           186.26GB
          Vendor ID =      SIMSSD
          Product ID =     FLASH-400
          Revision =       1.00
          Serial Number =  SOLD0001
          ( External Drive  PCIE SSD )
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=259
  
  $ wc -c < one.dat
  5840
  $ od -A d -t d4 -j 32 -N 20 one.dat
  0000032           0        5800           8           6
  0000048        5788
  0000052
  $ hostcli -zek show drive -zek=0 -drive=SLOT-7-SSD | head -4
  [ Device 0 on local host ]
  
  -drive=SLOT-7-SSD
          Unconfigured

SMART data are read with -smart; without -verbose only the attributes shown
always are listed, with it every one.

  $ hostcli -zek show drive -zek=0 -drive=5000-C500-D1A0-0000 -smart
  [ Device 0 on local host ]
  
  -drive=5000-C500-D1A0-0000
          Configured
          Owner ID =       2000001B32D1A000
          State =          Online
          Size =           186.26GB
          Vendor ID =      SIMSSD
          Product ID =     FLASH-400
          Revision =       1.00
          Serial Number =  SNEW0000
  
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=256
  
     Smart Drive Information:
     Smart Drive Status:   pass
  
     Vendor Specific SMART Attributes with Thresholds:
  
     ID ATTRIBUTE_NAME                    VALUE      WORST     THRESH  RAW_VALUE
      5 Reallocated_Sector_Ct              100        100         10   0
      9 Power_On_Hours                      97         97          0   1234
  $ hostcli -zek show drive -zek=0 -drive=5000-C500-D1A0-0000 -smart -verbose | tail -4
     ID ATTRIBUTE_NAME                    VALUE      WORST     THRESH  RAW_VALUE
      5 Reallocated_Sector_Ct              100        100         10   0
      9 Power_On_Hours                      97         97          0   1234
    231 SSD_Life_Left                       88         88         10   88

A drive whose SMART data cannot be read is still shown, with the reason
first; the misspelling is the tool's own.

  $ hostcli -zek show drive -zek=0 -drive=5000-C500-D1A0-0009 -smart
  [ Device 0 on local host ]
  
  Error atempting to get SMART data for the drive - The drive is offline or security locked
  -drive=5000-C500-D1A0-0009
          Unconfigured
          Owner ID =       2000001B32D1A000
          State =          Offline
          Drive Path:
              -fc_target=2100-001B-32D1-A000   -lun_number=260
  
  $ hbasim fault zek-new getSmartDriveInfo 1006
  $ hostcli -zek show drive -zek=0 -drive=5000-C500-D1A0-0001 -smart | head -4
  [ Device 0 on local host ]
  
  Error atempting to get SMART data for the drive - The adapter does not respond (it is offline or restarting)
  -drive=5000-C500-D1A0-0001

The drive presented as a LUN: by the internal target and the LUN number.
A number that the target does not have names no drive, and all are shown.

  $ hostcli -zek show drive -zek=0 -fc_target=2100-001B-32D1-A000 -lun_number=259 | head -4
  [ Device 0 on local host ]
  
  -drive=5000-C500-D1A0-FF01
          Unconfigured
  $ hostcli -zek show drive -zek=0 -fc_target=2100-001B-32D1-A000 -lun_number=99 | sed -n '3p'
  Configured Drives (1 of 6)

A LUN number needs a target; a target that cannot be read, or that the
adapter does not see, fails; a LUN that presents no drive of the adapter
names a drive that is not found, as does an unknown -drive.

  $ hostcli -zek show drive -zek=0 -lun_number=1
  \r             \r*** ZEKCLI_PARSE_FAIL -- -fc_target has to be issued when using -lun_number (esc)
  [52]
  $ hostcli -zek show drive -zek=0 -fc_target=xyz -lun_number=1
  \r             \r*** ZEKCLI_PARSE_FAIL -- xyz" is not valid text for an FC target (esc)
  [52]
  $ hostcli -zek show drive -zek=0 -fc_target=1111-2222-3333-4444 -lun_number=0
  \r             \r*** Object not found -- Target "1111-2222-3333-4444" not found (esc)
  [255]
  $ hostcli -zek show drive -zek=0 -fc_target=2100-001B-32D1-A000 -is_target=iqn.x -lun_number=0
  \r             \r*** ZEKCLI_PARSE_FAIL -- Only one of -is_target or -fc_target can be used (esc)
  [52]
  $ hostcli -zek show drive -zek=0 -drive=5000C500D1A0000
  \r             \r*** Object not found -- Drive "5000C500D1A0000" not found (esc)
  [255]
  $ hostcli -zek show drive -zek=0 -drive=S-NO-SUCH
  \r             \r*** Object not found -- Drive "S-NO-SUCH" not found (esc)
  [255]
  $ hostcli -zek show drive -zek=0 -drive=ABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABABAB | cut -c 1-60
  \r             \r*** Object not found -- Drive "ABABABABABABAB (esc)

When some drives cannot be read the reason comes first on a line of its
own; the command succeeds and its record carries the partial success.

  $ hbasim partial zek-new getDrivesWithErrorDetails 1206
  $ hostcli -zek show drive -zek=0 -drive=5000-C500-D1A0-0001 -result=partial.dat | head -5
  [ Device 0 on local host ]
  
  getDrives returned partial success.  At least one attempt to get info returned Object not found
  -drive=5000-C500-D1A0-0001
          Unconfigured
  $ od -A d -t d4 -j 32 -N 4 partial.dat
  0000032           2
  0000036

An adapter that stops answering during the command gets its code.

  $ hbasim fault zek-new getTargetsAndInitiators 1006
  $ hostcli -zek show drive -zek=0
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hbasim fault zek-new getLunsForSpecificTarget 1006
  $ hostcli -zek show drive -zek=0 -drive=5000-C500-D1A0-0001
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]

An adapter without drives shows nothing but its banner.

  $ hostcli -zek show drive -zek=1 -result=bare.dat
  [ Device 1 on local host ]
  
  $ od -A d -t d4 -j 32 -N 16 bare.dat
  0000032           0          12           8           0
  0000048

The default SAN: the second production adapter has an internal target for
its drives although it holds no data LUN.

  $ hbasim reset > /dev/null
  $ hostcli -zek show drive -zek=1 | grep -A1 'Drive Path'
          Drive Path:
              -fc_target=2100-001B-32A1-0D00   -lun_number=256
  --
          Drive Path:
              -fc_target=2100-001B-32A1-0D00   -lun_number=257
  --
          Drive Path:
              -fc_target=2100-001B-32A1-0D00   -lun_number=258
  --
          Drive Path:
              -fc_target=2100-001B-32A1-0D00   -lun_number=259

A result record that cannot be written makes the command fail with 55.

  $ hostcli -zek show drive -zek=0 -result=/nonexistent/r.dat -quiet
  [55]
  $ hostcli -zek show drive -zek=0 -drive=5000C532A10C0000 -result=/nonexistent/r.dat -quiet
  [55]
