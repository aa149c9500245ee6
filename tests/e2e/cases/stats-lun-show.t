show lun_statistics once, on the pinned SAN: per target its line, then one
row per LUN with the hits from reads, from writes and in total with their
share of the data read (in tenths, 99.96% reading 100.0 and no data read
reading 0.0), the data read and the cache in use; a LUN that is not cached
has its number and the data read only. The controller LUN has no row.

  $ hbasim reset $TESTDIR/scenarios/stats-pinned.json >/dev/null
  $ hostcli -zek show lun_statistics -zek=1000000000000A00
  [ Device 0 on local host ]
  
        Cache Hits       Cache Hits       Cache Hits       Read      Cache
        From Reads       From Writes      Total            Data      Capacity
  LUN   Bytes(%)         Bytes(%)         Bytes(%)         Bytes     Used (SSD+RAM)
  5006-0160-3A00-0001
  0     29GB (78.9%)     3.68GB (10.0%)   32.76GB (88.9%)  36.84GB   64.50GB
  
  1     15.61MB (100.0%) 0 (0.0%)         15.61MB (100.0%) 15.62MB   8MB
  
  2                                                        1.29GB
  
  5006-0168-3A00-0001
  0     29GB (78.9%)     3.68GB (10.0%)   32.76GB (88.9%)  36.84GB   64.50GB
  
  1     0 (0.0%)         0 (0.0%)         0 (0.0%)         120.60MB  0
  
  iqn.2026-11.example.vault:disk.01
  0                                                        218.75MB
  
  
  
  

One LUN, by its target and number.

  $ hostcli -zek show lun_statistics -zek=1000000000000A00 -fc_target=5006-0168-3A00-0001 -lun_number=1
  [ Device 0 on local host ]
  
        Cache Hits       Cache Hits       Cache Hits       Read      Cache
        From Reads       From Writes      Total            Data      Capacity
  LUN   Bytes(%)         Bytes(%)         Bytes(%)         Bytes     Used (SSD+RAM)
  5006-0168-3A00-0001
  1     0 (0.0%)         0 (0.0%)         0 (0.0%)         120.60MB  0
  
  
  
  

Selectors that find no LUN: the addressing text, then the empty table, and
the command still succeeds. An adapter that cannot be found, and intervals
out of range or with a decimal point, are refused; a value without digits
reads as 0 and shows the table once.

  $ hostcli -zek show lun_statistics -zek=1000000000000A00 -lun_number=7
  No LUNs found for  -lun_number=7
  
  [ Device 0 on local host ]
  
        Cache Hits       Cache Hits       Cache Hits       Read      Cache
        From Reads       From Writes      Total            Data      Capacity
  LUN   Bytes(%)         Bytes(%)         Bytes(%)         Bytes     Used (SSD+RAM)
  
  
  
  $ hostcli -zek show lun_statistics -zek=5
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=100001
  \r             \r*** ZEKCLI_PARSE_FAIL -- -interval modifier requires a number in the range 0 to 100000 (esc)
  [52]
  $ hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=1.5
  \r             \r*** ZEKCLI_PARSE_FAIL -- -interval modifier does not allow decimal point. (esc)
  [52]
  $ hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=abc -lun_number=2 | tail -n 5
  2                                                        1.29GB
  
  
  
  

Without an interval a CSV folder is not written to.

  $ mkdir csv
  $ hostcli -zek show lun_statistics -zek=1000000000000A00 -csv_folder=csv >/dev/null
  $ ls csv

In the loop (the test shim) the first cycle has the title and the clock only;
later cycles show the change of the I/O counts and data read since the cycle
before, with the running hit and capacity figures, the target line again in
every cycle. SIGINT ends it with 2.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=3 hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=10
  [ Device 0 on local host ]
  
        Cache Hits       Cache Hits       Cache Hits       Read      Cache
        From Reads       From Writes      Total            Data      Capacity
  LUN   Bytes(%)         Bytes(%)         Bytes(%)         Bytes     Used (SSD+RAM)
  
  
   00:10
  [ Device 0 on local host ]
  
        Cache Hits       Cache Hits       Cache Hits       Read      Cache
        From Reads       From Writes      Total            Data      Capacity
  LUN   Bytes(%)         Bytes(%)         Bytes(%)         Bytes     Used (SSD+RAM)
  5006-0160-3A00-0001
  0     29.10GB (78.9%)  3.68GB (10.0%)   32.78GB (88.9%)  23.43MB   64.50GB
  1     15.61MB (100.0%) 0 (0.0%)         15.61MB (100.0%) 0         8MB
  2                                                        7.81MB
  5006-0168-3A00-0001
  0     29.10GB (78.9%)  3.68GB (10.0%)   32.78GB (88.9%)  23.43MB   64.50GB
  1     0 (0.0%)         0 (0.0%)         0 (0.0%)         12MB      0
  iqn.2026-11.example.vault:disk.01
  0                                                        0
  
  
   00:20
  [ Device 0 on local host ]
  
        Cache Hits       Cache Hits       Cache Hits       Read      Cache
        From Reads       From Writes      Total            Data      Capacity
  LUN   Bytes(%)         Bytes(%)         Bytes(%)         Bytes     Used (SSD+RAM)
  5006-0160-3A00-0001
  0     29.11GB (78.9%)  3.68GB (10.0%)   32.80GB (88.9%)  23.43MB   64.50GB
  1     15.61MB (100.0%) 0 (0.0%)         15.61MB (100.0%) 0         8MB
  2                                                        7.81MB
  5006-0168-3A00-0001
  0     29.11GB (78.9%)  3.68GB (10.0%)   32.80GB (88.9%)  23.43MB   64.50GB
  1     0 (0.0%)         0 (0.0%)         0 (0.0%)         12MB      0
  iqn.2026-11.example.vault:disk.01
  0                                                        0
  
  
   00:30
  [2]

With a CSV folder each LUN cached or not gets a file of its own, named after
its number, its VP group and its target (the iSCSI name with its ":" and "."
as they are), with six lines of titles and a row from the second cycle on.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=3 hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=10 -csv_folder=csv >/dev/null
  [2]
  $ ls csv
  lun0vpg1_5006-0160-3A00-0001.csv
  lun0vpg1_5006-0168-3A00-0001.csv
  lun0vpg1_iqn.2026-11.example.vault:disk.01.csv
  lun1vpg1_5006-0160-3A00-0001.csv
  lun1vpg1_5006-0168-3A00-0001.csv
  lun2vpg1_5006-0160-3A00-0001.csv
  $ cat csv/lun0vpg1_5006-0160-3A00-0001.csv
  LUN,0,1,5006-0160-3A00-0001,
  ,,,Read,Read,Write,Write,Total,Total
  ,,,Cache,Cache,Cache,Cache,Cache,Cache
  ,,,Hits,Hits,Hits,Hits,Hits,Hits,Read,Write,Read,Write,Read,Write
  Date,Time,Cached,Curr(%),Avg(%),Curr(%),Avg(%),Curr(%),Avg(%),I/O Count,I/O Count,Blocks,Blocks,Cache Hits,Cache Hits
  
  11/18/2026,11:06:50,1.000000,78.000000,78.000000,10.000000,10.000000,88.000000,88.000000,1200.000000,300.000000,48000.000000,12000.000000,31246663680.000000,3959193600.000000,39591936000.000000,9897984000.000000,
  11/18/2026,11:07:00,1.000000,78.000000,78.000000,10.000000,10.000000,88.000000,88.000000,1200.000000,300.000000,48000.000000,12000.000000,31263866880.000000,3961651200.000000,39616512000.000000,9904128000.000000,
  $ cat csv/lun2vpg1_5006-0160-3A00-0001.csv
  LUN,2,1,5006-0160-3A00-0001,
  ,,,Read,Read,Write,Write,Total,Total
  ,,,Cache,Cache,Cache,Cache,Cache,Cache
  ,,,Hits,Hits,Hits,Hits,Hits,Hits,Read,Write,Read,Write,Read,Write
  Date,Time,Cached,Curr(%),Avg(%),Curr(%),Avg(%),Curr(%),Avg(%),I/O Count,I/O Count,Blocks,Blocks,Cache Hits,Cache Hits
  
  11/18/2026,11:06:50,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,400.000000,100.000000,16000.000000,4000.000000,0.000000,0.000000,0.000000,0.000000,
  11/18/2026,11:07:00,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,400.000000,100.000000,16000.000000,4000.000000,0.000000,0.000000,0.000000,0.000000,

A second run appends its rows, without titles.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=2 hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=10 -csv_folder=csv -lun_number=1 >/dev/null
  [2]
  $ wc -l csv/*
     8 csv/lun0vpg1_5006-0160-3A00-0001.csv
     8 csv/lun0vpg1_5006-0168-3A00-0001.csv
     8 csv/lun0vpg1_iqn.2026-11.example.vault:disk.01.csv
     9 csv/lun1vpg1_5006-0160-3A00-0001.csv
     9 csv/lun1vpg1_5006-0168-3A00-0001.csv
     8 csv/lun2vpg1_5006-0160-3A00-0001.csv
    50 total

The folder is never made: one that does not exist ends the second cycle,
the first with rows, with 55 and the text of the failed open; so does a
LUN's file that is a directory.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=3 hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=10 -csv_folder=nodir
  [ Device 0 on local host ]
  
        Cache Hits       Cache Hits       Cache Hits       Read      Cache
        From Reads       From Writes      Total            Data      Capacity
  LUN   Bytes(%)         Bytes(%)         Bytes(%)         Bytes     Used (SSD+RAM)
  
  
   00:10
  [ Device 0 on local host ]
  
  \r             \r*** Unknown return code 55 -- Unable to open file "nodir/lun0vpg1_5006-0160-3A00-0001.csv", (No such file or directory) (esc)
  [55]
  $ mkdir dir && mkdir dir/lun1vpg1_5006-0168-3A00-0001.csv
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=3 hostcli -zek show lun_statistics -zek=1000000000000A00 -interval=10 -csv_folder=dir > dir.txt
  [55]
  $ tail -n 1 dir.txt
  \r             \r*** Unknown return code 55 -- Unable to open file "dir/lun1vpg1_5006-0168-3A00-0001.csv", (Is a directory) (esc)
  $ ls dir
  lun0vpg1_5006-0160-3A00-0001.csv
  lun0vpg1_5006-0168-3A00-0001.csv
  lun1vpg1_5006-0160-3A00-0001.csv
  lun1vpg1_5006-0168-3A00-0001.csv
  lun2vpg1_5006-0160-3A00-0001.csv

A LUN that goes offline between cycles loses its row from the next cycle on
(stats/between-cycles.py acts while the command is held inside a cycle that
fills the pipe; 100 cached LUNs make a cycle long enough).

  $ hbasim generate 1 200 --cached 100 >/dev/null
  $ W=$(hbasim export | grep -m1 '"wwuln"' | cut -d'"' -f4)
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=4 python3 $TESTDIR/stats/between-cycles.py '\n\n 00:20' "hbasim offline lun $W" hostcli -zek show lun_statistics -zek=0 -interval=10 > offline.txt
  [2]
  $ awk '/^ [0-9]/ {print $1, rows; rows = 0} /^[0-9]+ / {rows++}' offline.txt
  00:10 
  00:20 200
  00:30 200
  00:40 199

Without the shim, a real SIGINT during the sleep ends the loop with 2.

  $ python3 $TESTDIR/stats/between-cycles.py '\n\n 00:10' SIGINT hostcli -zek show lun_statistics -zek=0 -interval=10 > sigint.txt
  [2]
  $ tail -n 1 sigint.txt
   00:10
