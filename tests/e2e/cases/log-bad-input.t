Saved log files and keyword values that are wrong in every way the log
commands meet them. Nothing crashes; each gets its message and code.

  $ hbasim reset $TESTDIR/scenarios/log-five.json >/dev/null
  $ hostcli -zek save log -zek=0 -file=five.log >/dev/null

A file that is not a whole number of 300-byte records is not a saved log.
The library says why; the command names the file (view log) or not (list
log), with code 1206:

  $ head -c 1499 five.log > torn.log
  $ hostcli -zek view log -zek=0 -file=torn.log
  "torn.log" is not a saved log: 1499 bytes are not a whole number of 300-byte records
  \r             \r*** Object not found --     FAIL --> Could not get log -file=torn.log (esc)
  [255]
  $ hostcli -zek list log -zek=0 -file=torn.log
  "torn.log" is not a saved log: 1499 bytes are not a whole number of 300-byte records
  \r             \r*** Object not found --     FAIL --> Could not get HLogView (esc)
  [255]

A directory, a file that is missing, and a path through a file:

  $ mkdir folder
  $ hostcli -zek view log -zek=0 -file=folder
  "folder" is not a saved log: not a regular file
  \r             \r*** Object not found --     FAIL --> Could not get log -file=folder (esc)
  [255]
  $ hostcli -zek list log -zek=0 -file=missing.log
  cannot open saved log "missing.log": No such file or directory
  \r             \r*** Object not found --     FAIL --> Could not get HLogView (esc)
  [255]
  $ hostcli -zek view log -zek=0 -file=five.log/x
  cannot open saved log "five.log/x": Not a directory
  \r             \r*** Object not found --     FAIL --> Could not get log -file=five.log/x (esc)
  [255]

An empty file is an empty log:

  $ : > empty.log
  $ hostcli -zek list log -zek=0 -file=empty.log
  [ Device 0 on local host ]
  
  Log is empty

Records of any bytes are shown as far as their fields go: a source of 32
and a message of 256 bytes without an end, a severity outside the table
("Unknown"), times that no calendar holds.

  $ python3 - <<'PY'
  > import struct
  > def record(time, source, severity, message):
  >     return struct.pack("<q32si256s", time, source, severity, message)
  > with open("odd.log", "wb") as f:
  >     f.write(record(0, b"S" * 32, 99, b"M" * 256))
  >     f.write(record(2**63 - 1, b"edge", -1, b"latest possible\n"))
  >     f.write(record(-2**63, b"edge", 7, b"earliest possible"))
  >     f.write(record(1794996000, b"ok", 2, b"plain"))
  > PY
  $ hostcli -zek view log -zek=0 -file=odd.log -basepos=start -next=4 | grep .
  [ Device 0 on local host ]
  Unknown 01/01/1970 00:00:00 SSSSSSSSSSSSSSSSSSSSSSSSSSSSSSSS MMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMM
  Unknown **/**/**** **:**:** edge latest possible
  SYSTM **/**/**** **:**:** edge earliest possible
  ERROR 11/18/2026 10:00:00 ok plain
  End_of_Log
  $ hostcli -zek list log -zek=0 -file=odd.log -find=MMMM -severity=fatal | grep -c Unknown
  1
  $ hostcli -zek list log -zek=0 -file=odd.log -severity=unknown | grep -c .
  2

A thousand records of random bytes, none of them NUL or a line feed: each
gives one line that stays within its fields (a severity of 7, a time of at
most 26, a source of 32 and a message of 256 characters, and the blanks
between), and the searches end.

  $ python3 -c "import random; r = random.Random(21); open('random.log', 'wb').write(bytes(r.choice([b for b in range(1, 256) if b != 10]) for _ in range(300000)))"
  $ hostcli -zek list log -zek=0 -file=random.log > random.txt
  $ grep -c . random.txt
  1001
  $ awk 'length($0) > 7 + 1 + 26 + 1 + 32 + 1 + 256 { n++ } END { print n + 0 }' random.txt
  0
  $ hostcli -zek view log -zek=0 -file=random.log -basepos=end -find=no-such-text -severity=fatal -time="01/01/1970 00:00:00" -previous=2 | grep -c .
  3

-time must be a quoted date and time; anything else is refused with 52 and
leaves the position alone:

  $ hostcli -zek view log -zek=0 -basepos=start -offset=1 -previous=0 >/dev/null
  $ hostcli -zek view log -zek=0 -time=yesterday
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- Enter time in a quoted string "MM/DD/YYYY HH:MM:SS", with hour specified 0 to 23 (esc)
  [52]
  $ hostcli -zek view log -zek=0 -time="11/18/2026 24:00:00"
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- Enter time in a quoted string "MM/DD/YYYY HH:MM:SS", with hour specified 0 to 23 (esc)
  [52]
  $ hostcli -zek view log -zek=0 -time="11/18/2041 10:00:00"
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- Enter time in a quoted string "MM/DD/YYYY HH:MM:SS", with hour specified 0 to 23 (esc)
  [52]
  $ remembered-value view log offset
  1

-severity must name a severity:

  $ hostcli -zek view log -zek=0 -severity=bad
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- "bad" is not recognized (esc)
  
  [52]
  $ hostcli -zek list log -zek=0 -severity=errors
  \r             \r*** ZEKCLI_PARSE_FAIL -- "errors" is not recognized (esc)
  
  [52]

Numbers at the edge of the range, and one past it:

  $ hostcli -zek view log -zek=0 -basepos=start -next=2147483647 | grep -c .
  7
  $ hostcli -zek view log -zek=0 -previous=2147483647 | grep -c .
  5
  $ hostcli -zek view log -zek=0 -next=2147483648
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- -next modifier requires a numeric value 0 or greater (esc)
  [52]
  $ hostcli -zek view log -zek=0 -previous=2147483648
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- -previous modifier requires a numeric value 0 or greater (esc)
  [52]
  $ hostcli -zek view log -zek=0 -basepos=start -offset=2147483647
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- -offset modifier requires a number in the range 0 to 4 (esc)
  [52]
  $ hostcli -zek view log -zek=0 -basepos=start -offset=2147483648
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- -offset modifier requires a number in the range 0 to 4 (esc)
  [52]
  $ hostcli -zek view log -zek=0 -basepos=start -offset=99999999999999999999999
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- -offset modifier requires a number in the range 0 to 4 (esc)
  [52]
  $ hostcli -zek view log -zek=0 -next=1.5
  [ Device 0 on local host ]
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- -next modifier does not allow decimal point. (esc)
  [52]
