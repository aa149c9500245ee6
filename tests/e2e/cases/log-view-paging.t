view log pages through the adapter's event log from a position that is
remembered between runs, in the -offset value of the preferences. The log
here has five records, index 0 the oldest:

  0 INFO  10:00 Cache pool online
  1 WARN  10:10 Port FC1 link down
  2 UNKN  10:20 Unclassified event code 7
  3 FATAL 10:30 Watchdog reset of core 2
  4 INFO  10:40 Port FC1 link up

  $ hbasim reset $TESTDIR/scenarios/log-five.json >/dev/null

A plain view log pages back 19 records (the 20 it leaves in -previous, less
one), at most to the oldest: it shows records 0 to 3, never the newest, and
leaves the position at 0. Every page starts with two blank lines and ends
with one more.

  $ hostcli -zek view log -zek=0
  [ Device 0 on local host ]
  
  
  
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  
  
  

A plain run does not use the remembered position: it starts from the end
again.

  $ hostcli -zek view log -zek=0 | grep -c .
  5

-previous=n pages back n records from the remembered position, and leaves
the position at the oldest record shown. A remembered 0 stands for the
newest record, so the pages wrap round from the oldest to the end:

  $ hostcli -zek view log -zek=0 -previous=2
  [ Device 0 on local host ]
  
  
  
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  
  
  
  $ hostcli -zek view log -zek=0 -previous=2 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  $ hostcli -zek view log -zek=0 -previous=2 | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2

A page longer than what lies before the position stops at the oldest record:

  $ hostcli -zek view log -zek=0 -previous=3 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light

-previous without a number pages back 20; -previous=0 shows nothing and
keeps the position where it stands (here the newest, as the remembered 0
says):

  $ hostcli -zek view log -zek=0 -previous | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  $ hostcli -zek view log -zek=0 -previous=0
  [ Device 0 on local host ]
  
  
  

-basepos=start starts at the oldest record, and -next=n pages forwards from
the position without overlap. The position after a forward page is one past
the last record shown; at the newest record the page says End_of_Log, and
the next page shows the newest record again.

  $ hostcli -zek view log -zek=0 -basepos=start -next=2
  [ Device 0 on local host ]
  
  
  
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  
  
  
  $ hostcli -zek view log -zek=0 -next=2 | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  $ hostcli -zek view log -zek=0 -next=2
  [ Device 0 on local host ]
  
  
  
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  
  End_of_Log
  
  
  
  
  $ hostcli -zek view log -zek=0 -next=2 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  End_of_Log

-next without a number pages forward by nothing:

  $ hostcli -zek view log -zek=0 -basepos=start -next | grep -c .
  1

With both, only -previous counts:

  $ hostcli -zek view log -zek=0 -basepos=end -next=3 -previous=1 | grep .
  [ Device 0 on local host ]
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2

-basepos with -offset: from the start the offset counts forwards; from the
end any offset above 0 lies past the newest record, which no record answers.

  $ hostcli -zek view log -zek=0 -basepos=start -offset=3 -next=1 | grep .
  [ Device 0 on local host ]
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  $ hostcli -zek view log -zek=0 -basepos=start -offset=3 -previous=2 | grep .
  [ Device 0 on local host ]
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  $ hostcli -zek view log -zek=0 -basepos=end -offset=0 -previous=1 | grep .
  [ Device 0 on local host ]
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  $ hostcli -zek view log -zek=0 -basepos=end -offset=1 -previous=1
  [ Device 0 on local host ]
  
  \r             \r*** Invalid argument -- Error getting log entry at saved position (esc)
  [255]

-basepos alone: "start" shows nothing before the oldest record; "end" pages
back by the remembered -previous value less one (here the 3 of the run
before, so 2 records). Words may be shortened.

  $ hostcli -zek view log -zek=0 -basepos=end -previous=3 >/dev/null
  $ hostcli -zek view log -zek=0 -basepos=s | grep -c .
  1
  $ hostcli -zek view log -zek=0 -basepos=e | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2

-offset needs -basepos, and must name a record; "-1" reads as 1, because the
number reader skips the sign:

  $ hostcli -zek view log -zek=0 -offset=2
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- If -offset is used, -basepos must also be specified (esc)
  [52]
  $ hostcli -zek view log -zek=0 -basepos=start -offset=5
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- -offset modifier requires a number in the range 0 to 4 (esc)
  [52]
  $ hostcli -zek view log -zek=0 -basepos=start -offset=-1 -next=1 | grep .
  [ Device 0 on local host ]
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  $ hostcli -zek view log -zek=0 -basepos=middle
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- "middle" is not recognized (esc)
  
  [52]
