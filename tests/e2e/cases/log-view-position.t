The remembered position of view log: kept only when the command ends with
0, an index into whatever log is viewed next, a file or the adapter's.

  $ hbasim reset $TESTDIR/scenarios/log-five.json >/dev/null
  $ hostcli -zek view log -zek=0 -basepos=start -offset=1 -previous=0 >/dev/null

A failing view log never moves it, nor the remembered page length: neither
an offset out of range (which the number reader clears) nor a record that
cannot be had.

  $ cp zekcli.ini before.ini
  $ hostcli -zek view log -zek=0 -basepos=start -offset=9 >/dev/null
  [52]
  $ hostcli -zek view log -zek=0 -basepos=end -offset=4 >/dev/null
  [255]
  $ hostcli -zek view log -zek=0 -time=yesterday >/dev/null
  [52]
  $ cmp zekcli.ini before.ini
  $ hostcli -zek view log -zek=0 -next=1 | grep .
  [ Device 0 on local host ]
  WARN  11/18/2026 10:10:00 fcdrv Port FC1 link down, waiting for light

Nor does a view log whose output cannot be written (55), here its text file:

  $ cp zekcli.ini before.ini
  $ hostcli -zek view log -zek=0 -next=1 -textfile=nodir/log.txt >/dev/null
  [55]
  $ cmp zekcli.ini before.ini

In a script that goes on after a failing line and ends with 0, the failing
lines leave the position as the line before them left it, whatever they
typed:

  $ printf '%s\n' 'view log -zek=0 -basepos=start -offset=2 -previous=0' \
  >   'view log -zek=0 -basepos=start -offset=9' 'view log -zek=0 -basepos=end -offset=3' \
  >   'view log -zek=0 -time=bad -previous=7' > lines.cfg
  $ hostcli -zek execute script -file=lines.cfg -continue_on_error -quiet
  $ remembered-value view log offset
  2
  $ remembered-value view log previous
  0

A position saved from a longer log that lies beyond a smaller one names no
record there:

  $ hostcli -zek view log -zek=0 -basepos=start -offset=4 -previous=0 >/dev/null
  $ hbasim log zek-log append info test "a sixth record" >/dev/null
  $ hostcli -zek save log -zek=0 -file=six.log >/dev/null
  $ hostcli -zek view log -zek=0 -basepos=end -offset=0 -previous=0 >/dev/null
  $ hostcli -zek view log -zek=0 -next=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 11:06:40 test a sixth record
  End_of_Log
  $ hostcli -zek clear log -zek=0 >/dev/null
  $ hbasim log zek-log append error test "one of three" --count 3 >/dev/null
  $ hostcli -zek view log -zek=0 -file=six.log -basepos=end -previous=0 >/dev/null
  $ hostcli -zek view log -zek=0 -previous=1
  [ Device 0 on local host ]
  
  \r             \r*** Invalid argument -- Error getting log entry at saved position (esc)
  [255]

The same position read against the saved file works, since it is not tied
to either log:

  $ hostcli -zek view log -zek=0 -file=six.log -previous=2 | grep .
  [ Device 0 on local host ]
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s

Searches run from the record at the position towards older ones, in the
order -time, -find, -severity, each from where the one before left off. They
move the record the page is shown from, not the position: a page shows the
records before the one found. Here the position is 3 from the run before, and
the text is found in record 1:

  $ hostcli -zek view log -zek=0 -file=six.log -find=FC1 -previous=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  $ hostcli -zek view log -zek=0 -file=six.log -basepos=end -find=FC1 -previous=2 | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  FATAL 11/18/2026 10:30:00 adapter Watchdog reset of core 2
  $ hostcli -zek view log -zek=0 -file=six.log -basepos=end -severity=err -previous=1 | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  $ hostcli -zek view log -zek=0 -file=six.log -basepos=end -time="11/18/2026 10:15:00" -previous=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  $ hostcli -zek view log -zek=0 -file=six.log -basepos=end -time="11/18/2026 10:15:00" -find=Cache -previous=1
  [ Device 0 on local host ]
  
  Start_of_Log
  
  
  
  
  INFO  11/18/2026 10:00:00 cachemgr Cache pool online, 3 SSDs in pool
  
  
  

A search that finds nothing leaves the page where it was, without a word:

  $ hostcli -zek view log -zek=0 -file=six.log -basepos=end -find=nothing -previous=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s

An empty log has nothing to page, whatever is asked. No position is
written, so what was typed is remembered as it stands:

  $ hostcli -zek view log -zek=1 -basepos=start -next=10
  [ Device 1 on local host ]
  
  Log is empty
  $ hostcli -zek view log -zek=1 -basepos=start -offset=99
  [ Device 1 on local host ]
  
  Log is empty
  $ remembered-value view log offset
  99
  $ : > empty.log
  $ hostcli -zek view log -zek=1 -file=empty.log -previous=3
  [ Device 1 on local host ]
  
  Log is empty

Garbage in the remembered -offset value reads as the number at its start,
and as the newest record when there is none:

  $ hostcli -zek view log -zek=0 -file=six.log -basepos=start -offset=2 -previous=0 >/dev/null
  $ remembered-value view log offset
  2
  $ remembered-value view log offset "garbage"
  $ hostcli -zek view log -zek=0 -file=six.log -previous=1 | grep .
  [ Device 0 on local host ]
  INFO  11/18/2026 10:40:00 fcdrv Port FC1 link up at 8 Gb/s
  $ remembered-value view log offset " 3rd"
  $ hostcli -zek view log -zek=0 -file=six.log -previous=1 | grep .
  [ Device 0 on local host ]
  UNKN  11/18/2026 10:20:00 unknown Unclassified event code 7
  $ remembered-value view log offset "-3"
  $ hostcli -zek view log -zek=0 -file=six.log -previous=1
  [ Device 0 on local host ]
  
  \r             \r*** Invalid argument -- Error getting log entry at saved position (esc)
  [255]
  $ remembered-value view log offset "99999999999999999999"
  $ hostcli -zek view log -zek=0 -file=six.log -next=1
  [ Device 0 on local host ]
  
  \r             \r*** Invalid argument -- Error getting log entry at saved position (esc)
  [255]
