list log prints the event log oldest first, optionally only the newest
matches of a text or of a severity, and can also write it to a CSV file. The
log has five records (see log-view-paging.t).

  $ hbasim reset $TESTDIR/scenarios/log-five.json >/dev/null
  $ hostcli -zek list log -zek=0
  [ Device 0 on local host ]
  
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  

-previous=n keeps the newest n; 0 and 1 both print the newest only:

  $ hostcli -zek list log -zek=0 -previous=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  $ hostcli -zek list log -zek=0 -previous=2 | grep .
  [ Device 0 on local host ]
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  $ hostcli -zek list log -zek=0 -previous=0 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  $ hostcli -zek list log -zek=0 -previous=9 | grep -c .
  6

A severity takes that one and every worse one; unknown counts as worse than
fatal. Words may be shortened and are not case-sensitive:

  $ hostcli -zek list log -zek=0 -severity=fatal | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  $ hostcli -zek list log -zek=0 -severity=WARN -previous=2 | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  $ hostcli -zek list log -zek=0 -severity=u | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7

A text is looked for in the message, case-sensitively; with a text the
severity is not looked at:

  $ hostcli -zek list log -zek=0 -find=FC1 | grep .
  [ Device 0 on local host ]
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  $ hostcli -zek list log -zek=0 -find=FC1 -severity=fatal -previous=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  $ hostcli -zek list log -zek=0 -find=fc1
  [ Device 0 on local host ]
  

-csv_file also writes the whole log, unfiltered, to a CSV file, its fields cut
by "," or by -csv_delimiter; the listing goes on as before:

  $ hostcli -zek list log -zek=0 -csv_file=log.csv -previous=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  $ cat log.csv
  Severity,Time,Source,Message
  INFO ,11/18/2026 10:00:00,cachemgr,Cache pool online, 3 SSDs in pool
  WARN ,11/18/2026 10:10:00,fcdrv,Port FC1 link down, waiting for light
  UNKN ,11/18/2026 10:20:00,unknown,Unclassified event code 7
  FATAL,11/18/2026 10:30:00,adapter,Watchdog reset of core 2
  INFO ,11/18/2026 10:40:00,fcdrv,Port FC1 link up at 8 Gb/s
  $ hostcli -zek list log -zek=0 -csv_file=log.csv -csv_delimiter=";" -find=nothing
  [ Device 0 on local host ]
  
  $ head -2 log.csv
  Severity;Time;Source;Message
  INFO ;11/18/2026 10:00:00;cachemgr;Cache pool online, 3 SSDs in pool

A -csv_delimiter alone writes no file:

  $ rm log.csv
  $ hostcli -zek list log -zek=0 -csv_delimiter=";" -previous=1 | grep -c .
  2
  $ ls log.csv 2>&1
  ls: cannot access 'log.csv': No such file or directory
  [2]

A CSV file that cannot be written ends the command before anything is
listed:

  $ hostcli -zek list log -zek=0 -csv_file=nodir/log.csv
  \r             \r*** Unknown return code 55 --     FAIL --> Could not write CSV file "nodir/log.csv" (esc)
  [55]
  $ mkdir folder
  $ hostcli -zek list log -zek=0 -csv_file=folder
  \r             \r*** Unknown return code 55 --     FAIL --> Could not write CSV file "folder" (esc)
  [55]

An empty log says so and stops there:

  $ hostcli -zek list log -zek=1 -previous=1 -result
  [ Device 1 on local host ]
  
  Log is empty
  $ ls list_log.dat 2>&1
  ls: cannot access 'list_log.dat': No such file or directory
  [2]

A listing writes one result record, with code 0:

  $ hostcli -zek list log -zek=0 -previous=1 -result -quiet
  $ od -A d -t d4 list_log.dat | sed -n 3p
  0000032           0           0

Bad keyword values are refused before anything is written:

  $ hostcli -zek list log -zek=0 -severity=worst -csv_file=never.csv
  \r             \r*** ZEKCLI_PARSE_FAIL -- "worst" is not recognized (esc)
  
  [52]
  $ hostcli -zek list log -zek=0 -previous=2147483648 -csv_file=never.csv
  \r             \r*** ZEKCLI_PARSE_FAIL -- -previous modifier requires a numeric value 0 or greater (esc)
  [52]
  $ hostcli -zek list log -zek=0 -previous=1.5
  \r             \r*** ZEKCLI_PARSE_FAIL -- -previous modifier does not allow decimal point. (esc)
  [52]
  $ ls never.csv 2>&1
  ls: cannot access 'never.csv': No such file or directory
  [2]
  $ hostcli -zek list log -zek=0 -previous=2147483647 | grep -c .
  6
