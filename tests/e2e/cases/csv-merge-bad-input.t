merge csv on files that are damaged, odd or hostile: each ends with a table or
a clear message, never with a hang or a crash.

  $ lunfile() { printf 'LUN,%s,0,%s,\n,,,Read,Read\nDate,Time,Cached,Curr(%%)\n\n' "$1" "$2"; }

An unterminated quote in line 1 runs to its end: the target is the rest of the
line. A NUL byte ends a number like any other character that is no digit.

  $ mkdir quotes && { printf 'LUN,1,0,"T1,x\n\n'; printf '11/18/2026,08:00:00,1\0002,3,4,5,\n'; } > quotes/a.csv
  $ hostcli -zek merge csv -csv_folder=quotes -file=quotes.txt && cat quotes.txt
  CSV output file quotes.txt created successfully
  ,,Target "T1,x,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:00:00,1.000000,3.000000,4.000000,5.000000,
  11/18/2026,08:00:00,1.000000,3.000000,4.000000,5.000000,

Lines of a megabyte and rows of 10,000 cells; cells that are no numbers count
0, numbers too large for a double are infinite.

  $ mkdir wide && { lunfile 1 T1; printf '11/18/2026,08:00:00,abc,1e999,-1e999,'; for i in $(seq 10000); do printf '%d,' $i; done; printf '\n'; } > wide/a.csv
  $ { printf 'LUN,2,0,T1,'; head -c 1048576 /dev/zero | tr '\0' 'x'; printf '\n'; head -c 1048576 /dev/zero | tr '\0' 't'; printf '\n\n11/18/2026,08:00:00,1,1,1,1,\n'; } > wide/b.csv
  $ hostcli -zek merge csv -csv_folder=wide -file=wide.txt >/dev/null && cut -c1-120 wide.txt
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:00:00,1.000000,inf,-inf,2.000000,
  11/18/2026,08:00:00,1.000000,inf,-inf,2.000000,

Out-of-range dates and times roll over as the calendar does: 13/40/2025
25:61:61 is 02/10/2026 02:02:01. A date that is no date at all ends its file
there; the file's earlier samples stay counted.

  $ mkdir roll && { lunfile 1 T1; printf '13/40/2025,25:61:61,1,1,1,1,\n'; } > roll/a.csv
  $ { lunfile 2 T1; printf '02/10/2026,02:02:00,2,2,2,2,\nxx/yy/zz,02:02:30,9,9,9,9,\n02/10/2026,02:02:40,9,9,9,9,\n'; } > roll/b.csv
  $ hostcli -zek merge csv -csv_folder=roll | grep .
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  02/10/2026,02:02:00,3.000000,3.000000,3.000000,3.000000,
  02/10/2026,02:02:00,3.000000,3.000000,3.000000,3.000000,

A sample going back in time goes into the current window; the grid does not
go back.

  $ mkdir back && { lunfile 1 T1; printf '%s\n' '11/18/2026,08:00:00,1,1,1,1,' '11/18/2026,08:00:15,1,1,1,1,' '11/18/2026,07:00:00,1,1,1,1,' '11/18/2026,08:00:20,1,1,1,1,'; } > back/a.csv
  $ hostcli -zek merge csv -csv_folder=back | grep .
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:00:00,1.000000,1.000000,1.000000,1.000000,
  11/18/2026,08:00:10,1.000000,1.000000,1.000000,1.000000,
  11/18/2026,08:00:10,1.000000,1.000000,1.000000,1.000000,

Samples more than ten years apart would make hundreds of millions of rows: the
merge stops with a message and 54, after the rows up to the gap. A year like
99999 is a date the calendar holds, so it ends the same way.

  $ mkdir far && cp back/a.csv far/ && { lunfile 2 T2; printf '11/18/1956,08:00:00,5,5,5,5,\n'; } > far/b.csv
  $ hostcli -zek merge csv -csv_folder=far -file=far.txt
  \r             \r*** ZEKCLI_CMD_FAIL -- The CSV samples lie more than 10 years apart (11/18/1956 08:00:00 and 11/18/2026 08:00:00); the merge was stopped (esc)
  [54]
  $ cat far.txt
  ,,Target T2,,,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/1956,08:00:00,5.000000,5.000000,5.000000,5.000000,0.000000,0.000000,0.000000,0.000000,
  $ mkdir year && cp back/a.csv year/ && { lunfile 2 T1; printf '13/40/99999,25:61:61,5,5,5,5,\n'; } > year/b.csv
  $ hostcli -zek merge csv -csv_folder=year
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  
  11/18/2026,08:00:00,1.000000,1.000000,1.000000,1.000000,
  
  11/18/2026,08:00:10,1.000000,1.000000,1.000000,1.000000,
  
  \r             \r*** ZEKCLI_CMD_FAIL -- The CSV samples lie more than 10 years apart (11/18/2026 08:00:00 and 02/10/100000 02:02:01); the merge was stopped (esc)
  [54]

FIFOs, folders, links that lead nowhere or in a circle are no files to read:
they are skipped, and nothing waits on them.

  $ mkdir odd && cp back/a.csv odd/ && mkfifo odd/pipe.csv && mkdir odd/folder.csv && ln -s nowhere odd/gone.csv && ln -s loop.csv odd/loop.csv
  $ timeout 20 hostcli -zek merge csv -csv_folder=odd | grep -c /
  4

A folder of 10,000 files, of which three are statistics files: the others are
opened, found to be something else and closed again.

  $ mkdir many && (cd many && for i in $(seq 9997); do echo "x,$i" > f$i.csv; done) && cp back/a.csv many/z1.csv && cp back/a.csv many/z2.csv && cp back/a.csv many/z3.csv
  $ hostcli -zek merge csv -csv_folder=many | sed -n 4p
  11/18/2026,08:00:00,1.000000,1.000000,1.000000,1.000000,

Statistics files are all held open at once. When the process runs out of file
handles the merge stops with the reason, rather than leave files out of the
table unnoticed.

  $ mkdir handles && for i in $(seq 100); do cp back/a.csv handles/lun$i.csv; done
  $ (ulimit -n 64; hostcli -zek merge csv -csv_folder=handles; echo "exit $?") | sed "s/lun[0-9]*/lunN/"
  \r             \r*** ZEKCLI_CMD_FAIL -- Unable to open file "handles/lunN.csv", (Too many open files) (esc)
  exit 54

An output file that cannot be opened or written fails with 55 and the reason.

  $ hostcli -zek merge csv -csv_folder=back -file=no-such-folder/out.csv
  \r             \r*** Unknown return code 55 -- Unable to open file "no-such-folder/out.csv", (No such file or directory) (esc)
  [55]
  $ hostcli -zek merge csv -csv_folder=back -file=/dev/full
  \r             \r*** Unknown return code 55 -- Unable to write file "/dev/full", (No space left on device) (esc)
  [55]
  $ hostcli -zek merge csv -csv_folder
  *** ZEKCLI_PARSE_FAIL
      
      csv_folder modifier requires a value
      Syntax: merge csv
  	[-csv_folder=<folder>]
  	[-file=<file name>]
  
  [52]
