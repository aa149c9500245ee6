merge csv reads the statistics files of a folder and writes one table: a row
for each 10 second window from the first sample to the last, and for every
target four columns summed over its LUN files. Each column takes a fixed value
of the sample (Cached, read hits now, read hits on average, write hits now, in
the order of the LUN file), always from the file's first sample. The table ends
with its last line twice.

A LUN file as show lun_statistics writes it: line 1 names the LUN and its
target, title lines follow up to an empty line, then one row per sample.

  $ lunfile() { printf 'LUN,%s,0,%s,\n,,,Read,Read\nDate,Time,Cached,Curr(%%)\n\n' "$1" "$2"; }
  $ mkdir one && { lunfile 1 T1; printf '%s\n' '11/18/2026,08:00:00,1.000000,2.000000,3.000000,4.000000,'; } > one/lun1.csv
  $ hostcli -zek merge csv -csv_folder=one -file=one.txt
  CSV output file one.txt created successfully
  $ cat one.txt
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:00:00,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:00,1.000000,2.000000,3.000000,4.000000,

On the console every piece is a displayed text, so a blank line follows each.

  $ hostcli -zek merge csv -csv_folder=one
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  
  11/18/2026,08:00:00,1.000000,2.000000,3.000000,4.000000,
  
  11/18/2026,08:00:00,1.000000,2.000000,3.000000,4.000000,
  

-quiet silences the console as for every command, and a folder may be named
with a trailing slash.

  $ hostcli -zek merge csv -csv_folder=one/ -quiet

Without -csv_folder the working directory is read.

  $ cd one && hostcli -zek merge csv -file=../here.txt; cd ..
  CSV output file ../here.txt created successfully
  $ cmp here.txt one.txt && echo same
  same

Two files of one target make one group, and their values are summed.

  $ mkdir two && cp one/lun1.csv two/ && { lunfile 2 T1; printf '%s\n' '11/18/2026,08:00:05,10,20,30,40,'; } > two/lun2.csv
  $ hostcli -zek merge csv -csv_folder=two -file=two.txt >/dev/null && cat two.txt
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:00:00,11.000000,22.000000,33.000000,44.000000,
  11/18/2026,08:00:00,11.000000,22.000000,33.000000,44.000000,

Two targets make two groups. Files are taken from the last name to the first,
so the targets appear in that order; a group's title stands over its first
column only.

  $ mkdir targets && cp two/*.csv targets/ && { lunfile 7 T0; printf '%s\n' '11/18/2026,08:00:01,5,5,5,5,'; } > targets/lun7.csv
  $ hostcli -zek merge csv -csv_folder=targets -file=targets.txt >/dev/null && cat targets.txt
  ,,Target T0,,,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:00:00,5.000000,5.000000,5.000000,5.000000,11.000000,22.000000,33.000000,44.000000,
  11/18/2026,08:00:00,5.000000,5.000000,5.000000,5.000000,11.000000,22.000000,33.000000,44.000000,

A per-port file feeds no column, but its samples drive the grid: the rows run
on to its last sample, with the sums unchanged. A file of titles only, a file
of another kind and files that are no statistics files at all are left out
without a word.

  $ mkdir mixed && cp one/lun1.csv mixed/
  $ printf 'PORT,FC,0\n\n11/18/2026,08:00:00,9,\n11/18/2026,08:00:25,9,\n' > mixed/port0.csv
  $ lunfile 3 T9 > mixed/titles-only.csv
  $ printf 'Date,Time,Adapter ID,Reads,\n11/18/2026,08:00:00,0,7,\n' > mixed/adapter_cache_statistics.csv
  $ printf 'LUN,4,0,T8,\n\n11/18/2026,08:00:00,1,\n' > mixed/notes.txt
  $ hostcli -zek merge csv -csv_folder=mixed -file=mixed.txt >/dev/null && cat mixed.txt
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:00:00,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:10,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:20,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:20,1.000000,2.000000,3.000000,4.000000,

Windows include both ends: a sample exactly 10 seconds after the start of a
window falls into it, and is not seen again in the next. A gap gives rows with
unchanged sums, and later samples add nothing new: the first sample's values
stay.

  $ mkdir grid && { lunfile 1 T1; printf '%s\n' '11/18/2026,08:00:00,1,2,3,4,' '11/18/2026,08:00:10,50,50,50,50,' '11/18/2026,08:00:41,60,60,60,60,'; } > grid/lun1.csv
  $ hostcli -zek merge csv -csv_folder=grid -file=grid.txt >/dev/null && cat grid.txt
  ,,Target T1,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:00:00,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:10,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:20,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:30,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:40,1.000000,2.000000,3.000000,4.000000,
  11/18/2026,08:00:40,1.000000,2.000000,3.000000,4.000000,

Files with the same first line share one value per column: a running mean in
which the latest file weighs half. Here c.csv (8) is read first, then b.csv
(4), then a.csv (2): (2 + (4 + 8) / 2) / 2 = 4.

  $ mkdir mean
  $ for f in a:2 b:4 c:8; do { lunfile 1 T1; printf '11/18/2026,08:00:00,%s,%s,%s,%s,\n' ${f#*:} ${f#*:} ${f#*:} ${f#*:}; } > mean/${f%:*}.csv; done
  $ hostcli -zek merge csv -csv_folder=mean | sed -n 4p
  11/18/2026,08:00:00,4.000000,4.000000,4.000000,4.000000,

An empty folder gives the two title lines, written twice as the last text.

  $ mkdir empty && hostcli -zek merge csv -csv_folder=empty -file=empty.txt && cat empty.txt
  CSV output file empty.txt created successfully
  ,,
  Date,Time,
  ,,
  Date,Time,

A folder that cannot be opened is no error either: the title lines only.

  $ hostcli -zek merge csv -csv_folder=no-such-folder -file=none.txt && cat none.txt
  CSV output file none.txt created successfully
  ,,
  Date,Time,
  ,,
  Date,Time,

Files written by show lun_statistics -csv_folder over about a minute: two LUNs
of one target and one of another, each sampled on its own clock every 10
seconds. LUN 1 is not cached, so its values are zeros.

  $ cp -r "$TESTDIR/csv-merge-lun-statistics" stats
  $ hostcli -zek merge csv -csv_folder=stats -file=stats.csv
  CSV output file stats.csv created successfully
  $ cat stats.csv
  ,,Target 2100-0024-FF3C-5A10,,,,Target 5006-0160-39A0-1122,,,,
  Date,Time,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,Read Block/sec,Write Block/sec,Read I/O/sec,Write I/O/sec,
  11/18/2026,08:26:40,1.000000,30.000000,30.000000,10.000000,1.000000,62.000000,62.000000,5.000000,
  11/18/2026,08:26:50,1.000000,30.000000,30.000000,10.000000,1.000000,62.000000,62.000000,5.000000,
  11/18/2026,08:27:00,1.000000,30.000000,30.000000,10.000000,1.000000,62.000000,62.000000,5.000000,
  11/18/2026,08:27:10,1.000000,30.000000,30.000000,10.000000,1.000000,62.000000,62.000000,5.000000,
  11/18/2026,08:27:20,1.000000,30.000000,30.000000,10.000000,1.000000,62.000000,62.000000,5.000000,
  11/18/2026,08:27:20,1.000000,30.000000,30.000000,10.000000,1.000000,62.000000,62.000000,5.000000,

The output file is written in the folder like any other file; written there
with a name ending in .csv it is not read back, as it is still empty when the
folder is read.

  $ hostcli -zek merge csv -csv_folder=stats -file=stats/summary.csv >/dev/null && cmp stats/summary.csv stats.csv && echo same
  same
  $ hostcli -zek merge csv -csv_folder=stats -file=stats/summary.csv >/dev/null && cmp stats/summary.csv stats.csv && echo same
  same

-file and -csv_folder are remembered like every keyword value, but only the
ones given on the line count: without -file the table goes to the console.

  $ hostcli -zek merge csv | head -2
  ,,
  Date,Time,
