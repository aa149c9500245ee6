The per-LUN files that show lun_statistics -csv_folder writes are what merge
csv reads: three cycles with rows on the pinned SAN (five LUNs of three
targets with statistics), merged into one table with a group of columns per
target.

  $ hbasim reset $TESTDIR/scenarios/stats-pinned.json >/dev/null
  $ mkdir lun
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=4 hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=10 -csv_folder=lun >/dev/null
  [2]
  $ ls lun
  lun0vpg1_5006-0160-3A00-0001.csv
  lun0vpg1_5006-0168-3A00-0001.csv
  lun0vpg1_iqn.2026-11.example.vault:disk.01.csv
  lun1vpg1_5006-0160-3A00-0001.csv
  lun1vpg1_5006-0168-3A00-0001.csv
  lun2vpg1_5006-0160-3A00-0001.csv
  $ hostcli -zek merge csv -csv_folder=lun -file=merged.csv
  CSV output file merged.csv created successfully
  $ cat merged.csv
  ,,Target 5006-0160-3A00-0001,,,,Target 5006-0168-3A00-0001,,,,Target iqn.2026-11.example.vault:disk.01,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,11:06:50,2.000000,177.000000,177.000000,10.000000,2.000000,78.000000,78.000000,10.000000,0.000000,0.000000,0.000000,0.000000,
  11/18/2026,11:07:00,2.000000,177.000000,177.000000,10.000000,2.000000,78.000000,78.000000,10.000000,0.000000,0.000000,0.000000,0.000000,
  11/18/2026,11:07:00,2.000000,177.000000,177.000000,10.000000,2.000000,78.000000,78.000000,10.000000,0.000000,0.000000,0.000000,0.000000,
