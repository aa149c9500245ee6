save log stores the adapter's log in a file of bare 300-byte records, which
view log and list log read with -file; report log writes a text report;
clear log empties the log.

  $ hbasim reset $TESTDIR/scenarios/log-five.json >/dev/null
  $ hostcli -zek save log -zek=0 -file=five.log
  [ Device 0 on local host ]
  
  Log saved successfully to file: "five.log"
  $ stat -c %s five.log
  1500
  $ od -A d -t d8 -N 8 five.log
  0000000           1794996000
  0000008
  $ od -A d -c -j 8 -N 8 five.log
  0000008   c   a   c   h   e   m   g   r
  0000016
  $ od -A d -t d4 -j 40 -N 4 five.log
  0000040           5
  0000044
  $ hostcli -zek list log -zek=0 -file=five.log -severity=error | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2

-file is short for -filepath, which is also accepted. A save replaces the
file whole:

  $ hostcli -zek save log -zek=1 -filepath=five.log -quiet
  $ stat -c %s five.log
  0

A file that cannot be written is not saved, and the command still ends with
0, saying nothing:

  $ touch blocker
  $ hostcli -zek save log -zek=0 -file=blocker/x.log
  $ mkdir folder
  $ hostcli -zek save log -zek=0 -file=folder
  $ ls -A folder

save log needs its file:

  $ hostcli -zek save log -zek=0 > usage.txt
  $ head -1 usage.txt
  Error:  -filepath modifier must be specified

report log without -file writes the report to the console, ahead of the
banner, and shows no text of its own:

  $ hostcli -zek report log -zek=0
  Event log report: 5 records, oldest first
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  [ Device 0 on local host ]
  

With -file the report goes there, and the message lacks its closing quote:

  $ hostcli -zek report log -zek=0 -file=report.txt
  [ Device 0 on local host ]
  
  Report saved successfully to file: "report.txt
  $ head -3 report.txt
  Event log report: 5 records, oldest first
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light

A report that cannot be written ends the command with 0 and no word:

  $ hostcli -zek report log -zek=0 -file=blocker/report.txt

clear log empties the adapter's log; view log and list log then find it
empty:

  $ hostcli -zek clear log -zek=0
  [ Device 0 on local host ]
  
  Log on the Fibre Channel Adapter successfully cleared
  $ hostcli -zek view log -zek=0
  [ Device 0 on local host ]
  
  Log is empty
  $ hostcli -zek list log -zek=0
  [ Device 0 on local host ]
  
  Log is empty
  $ hostcli -zek report log -zek=0 | head -1
  Event log report: 0 records, oldest first

The library's refusals come back as they are:

  $ hbasim fault zek-log clearLog 1006 >/dev/null
  $ hostcli -zek clear log -zek=0
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ for command in "save log -file=never.log" "report log" "view log" "list log"; do
  >   hbasim fault zek-log loadLog 1000 >/dev/null
  >   hostcli -zek $command -zek=0; echo "exit $?"
  > done
  \r             \r*** General failure (esc)
  exit 255
  \r             \r*** General failure (esc)
  exit 255
  \r             \r*** General failure (esc)
  exit 255
  \r             \r*** General failure (esc)
  exit 255
  $ ls never.log 2>&1
  ls: cannot access 'never.log': No such file or directory
  [2]
  $ hostcli -zek clear log -zek=7
  \r             \r*** Object not found (esc)
  [255]
