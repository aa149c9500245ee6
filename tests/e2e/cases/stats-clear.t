clear lun_statistics: one line per selected LUN with its outcome, no
adapter banner, status 0 with the last answer of the adapter in the result
record. Without a selector every LUN of every target is cleared; the
controller LUN has no statistics.

  $ hbasim reset $TESTDIR/scenarios/stats-pinned.json >/dev/null
  $ hostcli -zek clear lun_statistics -zek=1000000000000A00 -result
      LUN 0  on Target: 5006-0160-3A00-0001 -- LUN statistics cleared OK
      LUN 1  on Target: 5006-0160-3A00-0001 -- LUN statistics cleared OK
      LUN 2  on Target: 5006-0160-3A00-0001 -- LUN statistics cleared OK
      LUN 31  on Target: 5006-0160-3A00-0001 -- Statistics not available (SAN Controller LUN)
      LUN 0  on Target: 5006-0168-3A00-0001 -- LUN statistics cleared OK
      LUN 1  on Target: 5006-0168-3A00-0001 -- LUN statistics cleared OK
      LUN 0  on Target: iqn.2026-11.example.vault:disk.01 -- LUN statistics cleared OK
      LUN 256  on Target: 2100-0010-0000-0A00 -- LUN statistics cleared OK
  
  
  
  $ od -A d -t d4 clear_lun_statistics.dat
  0000000          32           0           2         103
  0000016           6           4           2          26
  0000032           0           0
  0000040

After the clear the LUN's figures are back at the values the scenario
pins, without what they grew since.

  $ hostcli -zek show lun_statistics -zek=1000000000000A00 -fc_target=5006-0160-3A00-0001 -lun_number=0 | sed -n 6,7p
  5006-0160-3A00-0001
  0     28.92GB (79.0%)  3.66GB (10.0%)   32.58GB (89.0%)  36.62GB   64.50GB

A LUN that is offline, and a clear the adapter refuses: the failure stands
in its line (the line after it starts with a blank) and in the result
record, and the command still ends with 0.

  $ hbasim offline lun 60000000000000000000000000000002 >/dev/null
  $ hbasim fault 1000000000000A00 clearLunStatistics 1206 >/dev/null
  $ hostcli -zek clear lun_statistics -zek=1000000000000A00 -fc_target=5006-0160-3A00-0001 -result
      LUN 0  on Target: 5006-0160-3A00-0001 --> Clear Statistics failed --> Object not found
       LUN 1  on Target: 5006-0160-3A00-0001 --> Clear Statistics failed --> The LUN is no longer available (it is offline or gone)
       LUN 2  on Target: 5006-0160-3A00-0001 -- LUN statistics cleared OK
      LUN 31  on Target: 5006-0160-3A00-0001 -- Statistics not available (SAN Controller LUN)
  
  
  
  $ hostcli -zek clear lun_statistics -zek=1000000000000A00 -fc_target=5006-0160-3A00-0001 -lun_number=0 -result
      LUN 0  on Target: 5006-0160-3A00-0001 -- LUN statistics cleared OK
  
  
  
  $ od -A d -t d4 clear_lun_statistics.dat
  0000000          32           0           2         103
  0000016           6           4           2          26
  0000032           0           0          32           0
  0000048           2         103           6           4
  0000064           2          26           0           0
  0000080          32           0           2         103
  0000096           6           4           2          26
  0000112           0           0
  0000120

Selectors that find no LUN: the addressing text and "No LUN specified". An
adapter that cannot be found is refused.

  $ hostcli -zek clear lun_statistics -zek=1000000000000A00 -lun_number=9
  No LUNs found for  -lun_number=9
  No LUN specified
  $ hostcli -zek clear lun_statistics -zek=5
  \r             \r*** Object not found (esc)
  [255]

clear statistics resets the adapter's counters: show statistics and show
cache_statistics start again from the pinned values.

  $ hbasim online lun 60000000000000000000000000000002 >/dev/null
  $ HBASIM_TIME=1795003600 hostcli -zek show statistics -zek=1000000000000A00 | grep "Read Data"
      Read Data                        = 2.89TB
      Cache Hits (Read Load)           = 2.27TB	(78.99% of Read Data)
      Cache Hits (Write Load)          = 409.95GB	(0.5% of Read Data)
      Cache Hits (Total)               = 2.67TB	(79.4% of Read Data)
  $ HBASIM_TIME=1795003600 hostcli -zek clear statistics -zek=1000000000000A00 -result
  [ Device 0 on local host ]
  
  Cache statistics have been reset to zero.
  
  $ od -A d -t d4 clear_statistics.dat
  0000000          32           0           2         103
  0000016           6           4           2          36
  0000032           0           0
  0000040
  $ HBASIM_TIME=1795003600 hostcli -zek show statistics -zek=1000000000000A00 | grep "Read Data"
      Read Data                        = 2.77TB
      Cache Hits (Read Load)           = 2.19TB	(78.99% of Read Data)
      Cache Hits (Write Load)          = 398GB	(0.5% of Read Data)
      Cache Hits (Total)               = 2.58TB	(79.4% of Read Data)
  $ hostcli -zek clear statistics -zek=5
  \r             \r*** Object not found (esc)
  [255]
  $ hbasim fault 1000000000000A00 clearAdapterStatistics 1206 >/dev/null
  $ hostcli -zek clear statistics -zek=1000000000000A00
  \r             \r*** Object not found (esc)
  [255]
