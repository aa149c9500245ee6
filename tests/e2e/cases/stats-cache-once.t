show cache_statistics once, on a SAN whose statistics are pinned (see
scenarios/stats-pinned.json): host IO from the adapter's record, the four
streams, the cache figures in their units (MiB counters shifted to bytes),
the LUNs this adapter caches (the two-path LUN once), and the analysis with
its bypass warnings: memory at exactly 6% of reads warns, size at exactly 5%
does not; for writes the other way round. The test shim pins the clock of
the time stamp.

  $ hbasim reset $TESTDIR/scenarios/stats-pinned.json >/dev/null
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000A00
  [ Device 0 on local host ]
  
  [11:06:40 11/18/2026]
  
      Korvane Adapter Up Time: 1:13:41
  
  
  
  [Host IO Statistics]
  
  Read  Latency:                Min:   0.085ms,  Max:  24.300ms,  Avg:   0.419ms;  Outstanding IO: 5
  Write Latency:                Min:   0.060ms,  Max:  18.300ms,  Avg:   0.296ms;  Outstanding IO: 4
  
  Host Reads:         4000000,  Min:  512Bytes,  Max:       1MB,  Avg:       4KB,  IOPS:  1712,  KBs: 33283
  Host Writes:        1500000,  Min:  512Bytes,  Max:     512KB,  Avg:       1MB,  IOPS:   632,  KBs: 17629
  
  
  [Global Cache IO Statistics]
  
  Host Reads:         4171200,  Min:     0.5KB,  Max:  1024.0KB,  Avg:    19.5KB,  IOPS:  1712,  KBs: 33283
  Host Writes:        1563200,  Min:     0.5KB,  Max:   512.0KB,  Avg:    27.5KB,  IOPS:   632,  KBs: 17629
  Read Flush:          834200,  Min:     4.0KB,  Max:  1024.0KB,  Avg:    20.0KB,  IOPS:   342,  KBs: 6656 
  Write Flush:         521000,  Min:     4.0KB,  Max:   512.0KB,  Avg:    28.0KB,  IOPS:   210,  KBs: 5876 
  
  
  [Global Cache Statistics]
  
  Total Cache Capacity           =       800GB
  Cache Capacity Used (SSD+RAM)  =     64.69GB (  8%)
  Cache Capacity Dirty           =       512MB
  Read  Data                     =      8.17TB
  Write Data                     =      4.32TB
  Cache Writes                   =         3TB ( 69%)
  Cache Hits (Read Load)         =      2.19TB ( 26% of Read Data)
  Cache Hits (Write Load)        =    398.13GB (  4% of Read Data)
  Cache Hits (Total)             =      2.58TB ( 31% of Read Data)
  
  RAM Read Cache Hits from Read:      45131895 ( 9%)
  SSD Read Cache Hits from Read:     180527580 (39%)
  SSD Read Cache Hits Overwrite:       9026359 ( 1%)
  SSD Read Cache Hits from Write:     22565897 ( 4%)
  
  
  [LUN Based Cache Statistics]
  
  WWULN                                         Size      Cache Capacity            (Clean + Dirty)   Read Size Write Size
  6000-0000-0000-0000-0000-0000-0000-0001   64GB 50%          64.50GB 8%             (64GB + 512MB)  (8, 1024)KB (4, 512)KB
     (Mirrored at Adapter 1000000000000B00)
  6000-0000-0000-0000-0000-0000-0000-0002   64GB 50%              8MB 0%                  (8MB + 0)    (0, 2)KB (2048, 4096)KB
  
  
  [Cache Statistics Analysis]
  
  
     [Cache Read]
      New SSD Read Cache from Read     =  91398152   2.72TB
  
      SSD Read Bypass Memory = 6% WARNING!!!
  
     [Cache Write]
      SSD Write Cache Writes           = 116625890
      SSD Read Cache Overwrites        =  13883972       11%
      SSD Write Cache Overwrites       =  11107218        9%
      New SSD Write Cache Writes       =  91634700       78%
  
      SSD Cache Freed = 8330363
  
      SSD Write By Pass Size = 6% WARNING!!!
  
  
  

The peer adapter caches one LUN of its own and mirrors the write-back LUN
of the first; its counter table has two counters only, the rest reading 0.

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000B00 | sed -n '/LUN Based/,$p'
  [LUN Based Cache Statistics]
  
  WWULN                                         Size      Cache Capacity            (Clean + Dirty)   Read Size Write Size
  6000-0000-0000-0000-0000-0000-0000-0004 100GB 100%          19.80MB 0%              (19.80MB + 0)  (0, 1024)KB (0, 1024)KB
  
  
  [Mirror LUN Statistics]
  
  WWULN                                         Size      Cache Capacity                    (Dirty)   Read Size Write Size
  6000-0000-0000-0000-0000-0000-0000-0001      200GB                   0                      512MB    (0, 0)KB   (0, 0)KB
     (Cached on remote adapter 1000000000000A00)
  
  
  [Cache Statistics Analysis]
  
  
     [Cache Read]
      New SSD Read Cache from Read     =         0        0
  
     [Cache Write]
      SSD Write Cache Writes           =         0
      SSD Read Cache Overwrites        =         0        0%
      SSD Write Cache Overwrites       =         0        0%
      New SSD Write Cache Writes       =         0        0%
  
      SSD Cache Freed = 0
  
  
  

-delta without -interval, and -interval=0, show the same single view; a
-csv_folder without an interval writes nothing.

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000A00 > plain.txt
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000A00 -delta > delta.txt
  $ diff plain.txt delta.txt
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=0 -delta -csv_folder=$HOME | cmp - plain.txt
  $ ls $HOME | grep -c 1000000000000A00_
  0
  [1]

No cached LUN and no counter at all: the LUN section is its title and every
figure reads 0.

  $ hbasim reset $TESTDIR/scenarios/stats-zero.json >/dev/null
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=10000000000000E0 | sed -n '/Global Cache Stat/,$p'
  [Global Cache Statistics]
  
  Total Cache Capacity           =           0
  Cache Capacity Used (SSD+RAM)  =           0 (  0%)
  Cache Capacity Dirty           =           0
  Read  Data                     =           0
  Write Data                     =           0
  Cache Writes                   =           0 (  0%)
  Cache Hits (Read Load)         =           0 (  0% of Read Data)
  Cache Hits (Write Load)        =           0 (  0% of Read Data)
  Cache Hits (Total)             =           0 (  0% of Read Data)
  
  RAM Read Cache Hits from Read:             0 ( 0%)
  SSD Read Cache Hits from Read:             0 ( 0%)
  SSD Read Cache Hits Overwrite:             0 ( 0%)
  SSD Read Cache Hits from Write:            0 ( 0%)
  
  
  [LUN Based Cache Statistics]
  
  WWULN                                         Size      Cache Capacity            (Clean + Dirty)   Read Size Write Size
  
  
  [Cache Statistics Analysis]
  
  
     [Cache Read]
      New SSD Read Cache from Read     =         0        0
  
     [Cache Write]
      SSD Write Cache Writes           =         0
      SSD Read Cache Overwrites        =         0        0%
      SSD Write Cache Overwrites       =         0        0%
      New SSD Write Cache Writes       =         0        0%
  
      SSD Cache Freed = 0
  
  
  

A LUN of no size makes the total of the sizes 0: its share reads "0 + 0%".

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=10000000000000F0 | sed -n '/LUN Based/,/Analysis/p'
  [LUN Based Cache Statistics]
  
  WWULN                                         Size      Cache Capacity            (Clean + Dirty)   Read Size Write Size
  6100-0000-0000-0000-0000-0000-0000-0001     0 + 0%                0 0%                    (0 + 0)  (0, 1024)KB (0, 1024)KB
  
  
  [Cache Statistics Analysis]

Bad input: an adapter that cannot be found, and intervals that are out of
range or not whole numbers.

  $ hostcli -zek show cache_statistics -zek=5
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek show cache_statistics -zek=1 -interval=100001
  \r             \r*** ZEKCLI_PARSE_FAIL -- -interval modifier requires a number in the range 0 to 100000 (esc)
  [52]
  $ hostcli -zek show cache_statistics -zek=1 -interval=1.5
  \r             \r*** ZEKCLI_PARSE_FAIL -- -interval modifier does not allow decimal point. (esc)
  [52]
