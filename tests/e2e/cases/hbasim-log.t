hbasim grows an adapter's event log between runs, so that view log -next
sees new records; the adapter keeps the newest 2000.

  $ hbasim reset $TESTDIR/scenarios/log-five.json >/dev/null
  $ hostcli -zek view log -zek=0 -basepos=end -next=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  End_of_Log
  $ hbasim log zek-log append warning fcdrv "Port FC2 link down"
  $ hbasim log 2000001B32A10C00 append 99 odd "severity out of the table" --count 2
  $ hostcli -zek view log -zek=0 -next=5 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  WARN  11/18/2026 11:06:40 fcdrv Port FC2 link down
  Unknown 11/18/2026 11:06:40 odd severity out of the table
  Unknown 11/18/2026 11:06:40 odd severity out of the table
  End_of_Log
  $ hbasim show | grep -o 'log [0-9]* records' | head -1
  log 8 records

Appends keep the newest 2000 records:

  $ hbasim log zek-log append info bulk "filler" --count 2500
  $ hbasim show | grep -o 'log [0-9]* records' | head -1
  log 2000 records
  $ hostcli -zek list log -zek=0 -find=Port | grep -c .
  1

A scenario's log is taken whole, however long; the next append cuts it:

  $ python3 - <<'PY'
  > import json
  > with open("long.json", "w") as f:
  >     json.dump({"format": "hbasim-scenario", "version": 1,
  >                "hosts": [{"nodeName": "h"}],
  >                "adapters": [{"id": "1", "device": 0,
  >                              "log": [{"time": 1794990000 + i, "message": "r%d" % i}
  >                                      for i in range(2500)]}]}, f)
  > PY
  $ hbasim reset long.json >/dev/null
  $ hostcli -zek list log -zek=0 | grep -c .
  2501
  $ hbasim log 1 append info x y
  $ hostcli -zek list log -zek=0 | grep -c .
  2001

generate gives every adapter a log of the length asked for:

  $ hbasim generate 2 4 --log 3000 >/dev/null
  $ hbasim show | grep -o 'log [0-9]* records'
  log 3000 records
  log 3000 records
  $ hbasim generate 1 4 --log 0 --output quiet.json >/dev/null
  $ grep -c '"log"' quiet.json
  0
  [1]

Bad requests change nothing:

  $ hbasim log zek-log append worst src text 2>&1
  hbasim: "worst" is not a severity: unknown, fatal, error, warning, trace, info, debug, system or a number
  Try "hbasim help".
  [2]
  $ hbasim log nosuch append info src text 2>&1
  hbasim: no adapter "nosuch" in the SAN
  Try "hbasim help".
  [2]
  $ hbasim log bench-0 append info src 2>&1
  hbasim: log takes ADAPTER append SEVERITY SOURCE MESSAGE [--count N]
  Try "hbasim help".
  [2]
  $ hbasim log bench-0 append info src text --count 0 2>&1
  hbasim: --count takes a number from 1 to 1000000
  Try "hbasim help".
  [2]
  $ hbasim generate 1 4 --log -1 2>&1
  hbasim: --log takes a number of records from 0 to 10000000
  Try "hbasim help".
  [2]
  $ hbasim generate 1 4 --log 2>&1
  hbasim: --log takes a number of records from 0 to 10000000
  Try "hbasim help".
  [2]
  $ hbasim show | grep -o 'log [0-9]* records'
  log 3000 records
  log 3000 records

Faults reach the two calls that use files: a saved log that cannot be read
is the command's FAIL text, a log that cannot be saved ends save log with 0
and no word.

  $ hbasim reset $TESTDIR/scenarios/log-five.json >/dev/null
  $ hostcli -zek save log -zek=0 -file=five.log -quiet
  $ hbasim fault zek-log getLogViewFromFile 1010
  $ hostcli -zek view log -zek=0 -file=five.log
  \r             \r*** Object not found --     FAIL --> Could not get log -file=five.log (esc)
  [255]
  $ hostcli -zek view log -zek=0 -file=five.log -previous=1 | grep -c .
  2
  $ hbasim fault zek-log saveLogFile 1010 --always
  $ rm five.log
  $ hostcli -zek save log -zek=0 -file=five.log
  $ ls five.log 2>&1
  ls: cannot access 'five.log': No such file or directory
  [2]
  $ hbasim clear-faults
  $ hbasim fault zek-log saveLogFile 2
  $ hostcli -zek save log -zek=0 -file=five.log | grep -c saved
  1
