show cache_statistics in its loop, through the test shim: every cycle on a
cleared screen under the banner, ending with the time the loop has run
(the running cycle counted in); SIGINT ends it with 2. The scenario pins the
counters, most of them growing at a pace of their own, so the second cycle
has changes to show.

With -delta the first cycle has no analysis, and the second shows each
figure's change since the first (the percent columns are never changes),
the LUN size warnings (against the adapter's averages; the write warnings
quote the read average), and the analysis with the change of each share.

  $ hbasim reset $TESTDIR/scenarios/stats-pinned.json >/dev/null
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=2 hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=10 -delta
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
  
  
   00:10
  [ Device 0 on local host ]
  
  [11:06:50 11/18/2026]
  
      Korvane Adapter Up Time: 1:13:51 (+0:0:10)
  
  
  [Host IO Statistics]
  
  Read  Latency:                Min:   0.085ms,  Max:  24.300ms,  Avg:   0.419ms;  Outstanding IO: 5
  Write Latency:                Min:   0.060ms,  Max:  18.300ms,  Avg:   0.296ms;  Outstanding IO: 4
  
  Host Reads:         4000000,  Min:  512Bytes,  Max:       1MB,  Avg:       4KB,  IOPS:  1712,  KBs: 33283
  Host Writes:        1500000,  Min:  512Bytes,  Max:     512KB,  Avg:       1MB,  IOPS:   632,  KBs: 17629
  
  
  [Global Cache IO Statistics]
  
  Host Reads:         4188320,  Min:     0.5KB,  Max:  1024.0KB,  Avg:    19.5KB,  IOPS:  1712,  KBs: 33283
  Host Writes:        1569520,  Min:     0.5KB,  Max:   512.0KB,  Avg:    27.5KB,  IOPS:   632,  KBs: 17629
  Read Flush:          837620,  Min:     4.0KB,  Max:  1024.0KB,  Avg:    20.0KB,  IOPS:   342,  KBs: 6656 
  Write Flush:         523100,  Min:     4.0KB,  Max:   512.0KB,  Avg:    28.0KB,  IOPS:   210,  KBs: 5876 
  
  
  [Global Cache Statistics]
  
  Total Cache Capacity           =       800GB (0)      
  Cache Capacity Used (SSD+RAM)  =     64.71GB (20MB)                   (8%)
  Cache Capacity Dirty           =       512MB (0)      
  Read  Data                     =      8.17TB (330MB)  
  Write Data                     =      4.32TB (170MB)  
  Cache Writes                   =         3TB (120MB)                 (69%)
  Cache Hits (Read Load)         =      2.19TB (90MB)     (26% of Read Data)
  Cache Hits (Write Load)        =    398.14GB (10MB)      (4% of Read Data)
  Cache Hits (Total)             =      2.58TB (100MB)    (31% of Read Data)
  
  RAM Read Cache Hits from Read:      45133605 (   1710) ( 9%)
  SSD Read Cache Hits from Read:     180534420 (   6840) (39%)
  SSD Read Cache Hits Overwrite:       9026699 (    340) ( 1%)
  SSD Read Cache Hits from Write:     22566747 (    850) ( 4%)
  
  
  [LUN Based Cache Statistics]
  
  WWULN                                         Size      Cache Capacity            (Clean + Dirty)   Read Size Write Size
  6000-0000-0000-0000-0000-0000-0000-0001   64GB 50%      64.50GB (0) 8%             (64GB + 512MB)  (8, 1024)KB (4, 512)KB
     (Mirrored at Adapter 1000000000000B00)
      WARNING: The average read size (4KB) is smaller than this LUN's min read size (8KB)!
      We suggest to reduce this LUN's min read cache size!
      WARNING: The average write size (4KB) is bigger than this LUN's max write size (512KB)!
      We suggest to enlarge this LUN's max write cache size!
  6000-0000-0000-0000-0000-0000-0000-0002   64GB 50%          8MB (0) 0%                  (8MB + 0)    (0, 2)KB (2048, 4096)KB
      WARNING: The average write size (4KB) is smaller than this LUN's min write size (2MB)!
      We suggest to reduce this LUN's min write cache size!
      WARNING: The average read size (4KB) is bigger than this LUN's max read size (2KB)!
      We suggest to enlarge this LUN's max read cache size!
  
  
  [Cache Statistics Analysis]
  
  
     [Cache Read]
      New SSD Read Cache from Read     =    91401612     (3460) 2.72TB(108MB)
  
      SSD Read Bypass Memory = 6% (0%) WARNING!!!
  
     [Cache Write]
      SSD Write Cache Writes           =   116630310     (4420)
      SSD Read Cache Overwrites        =    13884492      (520)     11%   (0%)
      SSD Write Cache Overwrites       =    11107638      (420)      9%   (0%)
      New SSD Write Cache Writes       =    91638180     (3480)     78%   (0%)
  
      SSD Cache Freed = 8330673 (310)
  
      SSD Write By Pass Size = 6% (0%) WARNING!!!
  
  
   00:20
  [2]

Without -delta both cycles have the analysis, and the second the warnings.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=2 hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=10 > plain.txt
  [2]
  $ grep -c "Cache Statistics Analysis" plain.txt
  2
  $ grep -c "WARNING: The average" plain.txt
  4

Counters that do not grow change by 0; the clock shows hours once there are
any.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=2 hostcli -zek show cache_statistics -zek=1000000000000B00 -interval=3600 -delta > peer.txt
  [2]
  $ grep "Up Time\|Total Cache Capacity\|Read  Data" peer.txt
      Korvane Adapter Up Time: 0:18:20
  Total Cache Capacity           =       400GB
  Read  Data                     =           0
      Korvane Adapter Up Time: 1:18:20 (+1:0:0)
  Total Cache Capacity           =       400GB (0)      
  Read  Data                     =           0 (0)      
  $ tail -n 1 peer.txt
   2:00:00

The interval's bounds: 100000 seconds is the longest; "0x10" reads as 16.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=1 hostcli -zek show cache_statistics -zek=1000000000000B00 -interval=100000 | tail -n 1
   27:46:40
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=1 hostcli -zek show cache_statistics -zek=1000000000000B00 -interval=0x10 | tail -n 1
   00:16

With -csv_folder each cycle adds a row to four files in a folder of the run,
named after the adapter and the local month, day, hour and minute of the
start. The titles are those the readers of these files know, odd spellings
and tabs included; the rows hold the cycle's raw figures.

  $ mkdir csv
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=2 hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=10 -delta -csv_folder=csv >/dev/null
  [2]
  $ ls csv csv/*
  csv:
  1000000000000A00_11-18_11-6
  
  csv/1000000000000A00_11-18_11-6:
  1000000000000A00_cache_statistics.csv
  1000000000000A00_cache_statistics_summary.csv
  1000000000000A00_host_pcie_statistics.csv
  1000000000000A00_lun_cache_statistics.csv
  $ wc -l csv/*/*
      3 csv/1000000000000A00_11-18_11-6/1000000000000A00_cache_statistics.csv
      3 csv/1000000000000A00_11-18_11-6/1000000000000A00_cache_statistics_summary.csv
      3 csv/1000000000000A00_11-18_11-6/1000000000000A00_host_pcie_statistics.csv
      3 csv/1000000000000A00_11-18_11-6/1000000000000A00_lun_cache_statistics.csv
     12 total
  $ cat csv/*/1000000000000A00_cache_statistics.csv
  Date,Time,Adapter ID,Host Reads IOs,Host Reads Min,Host Reads Max,Host Reads Avg,Host Reads IOPs,Host Reads KBs,Host Writes IOs,Host Writes Min,Host Writes Max,Host Writes Avg,Host Writes IOPs,Host Writes KBs,Read Flush IOs,Read Flush Min,Read Flush Max,Read Flush Avg,Read Flush IOPs,Read Flush KBs,Write Flush IOs,Write Flush Min,Write Flush Max,Write Flush Avg,Write Flush IOPs,Write Flush KBs,UpTime,Cache Pool Max MB,Cache Pool Used MB,Cache Pool Dirty MB,Host Data Read MB,Host Data Write MB,Host CACHE Writes MB,Host CACHE Writes (%),CACHE Read Hits MB RL,RL (%),CACHE Read Hits MB WL,WL (%),CACHE Read Hits MB Total,Total (%),RAM ReadCacheReadHits,RAM ReadCacheReadHits (%),SSD ReadCacheReadHits,SSD ReadCacheReadHits (%),SSD ReadCacheOWReadHits,SSD ReadCacheOWReadHits (%),SSD WriteCacheReadHits,SSD WriteCacheReadHits (%),SSD ReadCacheFlushes,SSD ReadBypassSize,SSD ReadBypassMem,ReadIos Total,SSD WriteCacheWrites,Cache Breakup Write IOs,SSD ReadCacheOverwrites,SSD WriteCacheOverwrites,SSD ReadCacheFreed,SSD WriteBypassSize,SSD WriteBypassMem,WriteIos Total,Vendor Counter Of 32 Characters!,
  11/18/2026,11:06:40,1000000000000A00,4171200,1,2048,39,1712,33283,1563200,1,1024,55,632,17629,834200,8,2048,40,342,6656,521000,8,1024,56,210,5876,263621,819200,66248,512,8568633,4538558,3177000,69,2300859,26,407687,4,2708546,31,45131895,9,180527580,39,9026359,1,22565897,4,91398152,5500,6600,110000,116625890,185050302,13883972,11107218,8330363,3300,2750,55000,58,
  11/18/2026,11:06:50,1000000000000A00,4188320,1,2048,39,1712,33283,1569520,1,1024,55,632,17629,837620,8,2048,40,342,6656,523100,8,1024,56,210,5876,263631,819200,66268,512,8568963,4538728,3177120,69,2300949,26,407697,4,2708646,31,45133605,9,180534420,39,9026699,1,22566747,4,91401612,5550,6660,111000,116630310,185050302,13884492,11107638,8330673,3330,2750,55500,58,
  $ cat csv/*/1000000000000A00_host_pcie_statistics.csv
  Date,Time,Adapter ID,Read Diff Time,Write Diff Time,Read IO Count,Read Bytes Count,Write IO Count,Write Bytes Count,Avg Read IOs Per Sec,Min Read IO Size Bytes,Max Read IO Size Bytes,Avg Read IO Size Bytes,Average Read Bandwidth (Bytes),Read IO Delay,Min Read IO Latency (us),Max Read IO Latency (us),Avg Read IO Latency (us),Current Read IO Outstanding,Avg Write IOs Per Sec,Min Write IO Size Bytes,Max Write IO Size Bytes,Avg Write IO Size Bytes,Average Write Bandwidth (Bytes),Write IO Delay,Min Write IO Latency (us),Max Write IO Latency (us),Avg Write IO Latency (us),Current Write IO Outstanding,
  11/18/2026,11:06:40,1000000000000A00,1000,1000,4000000,626216448,1500000,2712516096,1712,512,1048576,4096,34082304,0,85,24300,419,5,632,512,524288,1048576,18052608,0,60,18300,296,4,
  11/18/2026,11:06:50,1000000000000A00,1000,1000,4000000,626216448,1500000,2712516096,1712,512,1048576,4096,34082304,0,85,24300,419,5,632,512,524288,1048576,18052608,0,60,18300,296,4,
  $ cat -A csv/*/1000000000000A00_lun_cache_statistics.csv
  Date,Time,Adapter ID,Number of Cached LUNs,Total LUN Size,Total Cacheable LUN Size,LUN 1 WWULN, Cache Type, Size (Bytes), Ratio of this LUN Size to Total LUN Size, Max Cacheable Size (Bytes), Ratio of this LUN Cacheable Size to Total LUN Cacheable Size, Max Read Size to be Cached, Min Read Size to be Cached, Max Write Size to be Cached, Min Write Size to be Cached, Number of Locked Range, Cache Hit (Read Load) (Bytes), Cache Hit (Read Load) %, Cache Hit (Write Load) (Bytes), Cache Hit (Write Load) %, Total data read by host (Bytes), Total data written by host (bytes), Clean Cache in-use (Bytes), Dirty Cache in-use (Bytes), Locked Cache in-use (Bytes),LUN 2 WWULN, Cache Type, Size (Bytes), Ratio of this LUN Size to Total LUN Size, Max Cacheable Size (Bytes), Ratio of this LUN Cacheable Size to Total LUN Cacheable Size, Max Read Size to be Cached, Min Read Size to be Cached, Max Write Size to be Cached, Min Write Size to be Cached, Number of Locked Range, Cache Hit (Read Load) (Bytes), Cache Hit (Read Load) %, Cache Hit (Write Load) (Bytes), Cache Hit (Write Load) %, Total data read by host (Bytes), Total data written by host (bytes), Clean Cache in-use (Bytes), Dirty Cache in-use (Bytes), Locked Cache in-use (Bytes),$
  11/18/2026,11:06:40,1000000000000A00,2,283467841536.000000,137438953472.000000,6000-0000-0000-0000-0000-0000-0000-0001,2.000000,214748364800.000000,75.757576,68719476736.000000,50.000000,2048.000000,16.000000,1024.000000,8.000000,1.000000,31229460480.000000,78.990000,3956736000.000000,13.990000,39567360000.000000,9891840000.000000,68719476736.000000,536870912.000000,1048576.000000,6000-0000-0000-0000-0000-0000-0000-0002,1.000000,68719476736.000000,24.242424,68719476736.000000,50.000000,4.000000,1.000000,8192.000000,4096.000000,0.000000,16377446.000000,99.960000,0.000000,0.000000,16384000.000000,16384000.000000,8388608.000000,0.000000,0.000000,$
  11/18/2026,11:06:50,1000000000000A00,2,283467841536.000000,137438953472.000000,6000-0000-0000-0000-0000-0000-0000-0001,2.000000,214748364800.000000,75.757576,68719476736.000000,50.000000,2048.000000,16.000000,1024.000000,8.000000,1.000000,31246663680.000000,78.990000,3959193600.000000,13.990000,39591936000.000000,9897984000.000000,68719476736.000000,536870912.000000,1048576.000000,6000-0000-0000-0000-0000-0000-0000-0002,1.000000,68719476736.000000,24.242424,68719476736.000000,50.000000,4.000000,1.000000,8192.000000,4096.000000,0.000000,16377446.000000,99.960000,0.000000,0.000000,16384000.000000,16384000.000000,8388608.000000,0.000000,0.000000,$
  $ cat -A csv/*/1000000000000A00_cache_statistics_summary.csv
  Date,Time,Adapter ID, ^I^I^I^I  Host Read Min Latency (ms),  Host Read Max Latency (ms),  Host Read Avg Latency (ms), Host Read Outstanding IO, ^I^I^I^I  Host Write Min Latency (ms), Host Write Max Latency (ms) ,Host Write Avg Latency (ms), Host Write Outstanding IO, ^I^I^I^I  Host Read Count, Host Read Min Size (KBs), Host Read Max Size (KBs),  Host Read Avg Size (KBs),  Host Read IOPS,  Host Read Bandwidth (KBs), ^I^I^I^I  Host Write Count,Host Write Min Size (KBs),Host Write Max Size (KBs), Host Write Avg Size (KBs), Host Write IOPS, Host Write Bandwidth (KBs), ^I^I^I^I  Global Cache Host Read Count,  Global Cache Host Read Min Size (KBs),  Global Cache Host Read Max Size (KBs),  Global Cache Host Read Avg Size (KBs),  Global Cache Host Read IOPS,  Global Cache Host Read Bandwidth (KBs), ^I^I^I^I  Global Cache Host Write Count, Global Cache Host Write Min Size (KBs), Global Cache Host Write Max Size (KBs), Global Cache Host Write Avg Size (KBs), Global Cache Host Write IOPS, Global Cache Host Write Bandwidth (KBs), ^I^I^I^I  Global Cache Host Read Flush Count,  Global Cache Host Read Flush Min Size (KBs),  Global Cache Host Read Flush Max Size (KBs),  Global Cache Host Read Flush Avg Size (KBs),  Global Cache Host Read Flush IOPS,  Global Cache Host Read Flush Bandwidth (KBs), ^I^I^I^I  Global Cache Host Write Flush Count, Global Cache Host Write Flush Min Size (KBs), Global Cache Host Write Flush Max Size (KBs), Global Cache Host Write Flush Avg Size (KBs), Global Cache Host Write Flush IOPS, Global Cache Host Write Flush Bandwidth (KBs), ^I^I^I^I  Total Cache Capacity (MB), Cache Capacity Used (SSD+RAM) (MB), %, Cache Capacity Dirty (MB), Read Data (MB), Write Data (MB), Cache Writes (MB), %, Cache Hits (Read Load) (MB), % of Read Data (MB), Cache Hits (Write Load) (MB), % of Read Data, Cache Hits (Total) (MB), % of Read Data, ^I^I^I^I  RAM Read Cache Hits from Read, %, SSD Read Cache Hits from Read, %, SSD Read Cache Hits Overwrite, %, SSD Read Cache Hits from Write, %,^I^I^I^I  New SSD Read Cache from Read Count, New SSD Read Cache from Read Size (MB), SSD Read Bypass Size (MB), %, SSD Read Bypass Memory (MB), %, ^I^I^I^I  SSD Write Cache Writes, SSD Read Cache Overwrites, %, SSD Write Cache Overwrites, %, New SSD Write Cache Writes, %, SSD Ccahe Freed, SSD Write Bypass Size (MB), %, SSD Write Bypass Memory (MB), %,^I^I^I^I  Number of Cached LUNs, Total LUN Size (MB), Total Cacheable LUN Size (MB),LUN 1 WWULN, Cache Type, Size (MB), Ratio of this LUN Size to Total LUN Size, Max Cacheable Size (MB), Ratio of this LUN Cacheable Size to Total LUN Cacheable Size, Max Read Size to be Cached (KB), Min Read Size to be Cached (KB), Max Write Size to be Cached (KB), Min Write Size to be Cached (KB), Number of Locked Range, Cache Hit (Read Load) (MB), Cache Hit (Read Load) %, Cache Hit (Write Load) (MB), Cache Hit (Write Load) %, Total data read by host (MB), Total data written by host (MB), Clean Cache in-use (MB), Dirty Cache in-use (MB), Locked Cache in-use (MB),LUN 2 WWULN, Cache Type, Size (MB), Ratio of this LUN Size to Total LUN Size, Max Cacheable Size (MB), Ratio of this LUN Cacheable Size to Total LUN Cacheable Size, Max Read Size to be Cached (KB), Min Read Size to be Cached (KB), Max Write Size to be Cached (KB), Min Write Size to be Cached (KB), Number of Locked Range, Cache Hit (Read Load) (MB), Cache Hit (Read Load) %, Cache Hit (Write Load) (MB), Cache Hit (Write Load) %, Total data read by host (MB), Total data written by host (MB), Clean Cache in-use (MB), Dirty Cache in-use (MB), Locked Cache in-use (MB),$
  11/18/2026,11:06:40,1000000000000A00,0.085000,24.300000,0.419000,5.000000,0.060000,18.300000,0.296000,4.000000,4000000.000000,0.000000,1024.000000,4.000000,1712.000000,33283.000000,1500000.000000,0.000000,512.000000,1024.000000,632.000000,17629.000000,4171200.000000,0.500000,1024.000000,19.500000,1712.000000,33283.000000,1563200.000000,0.500000,512.000000,27.500000,632.000000,17629.000000,834200.000000,4.000000,1024.000000,20.000000,342.000000,6656.000000,521000.000000,4.000000,512.000000,28.000000,210.000000,5876.000000,819200.000000,66248.000000,8.000000,512.000000,8568633.000000,4538558.000000,3177000.000000,69.000000,2300859.000000,26.000000,407687.000000,4.000000,2708546.000000,31.000000,45131895.000000,9.000000,180527580.000000,39.000000,9026359.000000,1.000000,22565897.000000,4.000000,91398152.000000,2856192.000000,5500.000000,5.000000,6600.000000,6.000000,116625890.000000,13883972.000000,11.000000,11107218.000000,9.000000,91634700.000000,78.000000,8330363.000000,3300.000000,6.000000,2750.000000,5.000000,2,270336.000000,131072.000000,6000-0000-0000-0000-0000-0000-0000-0001,2.000000,204800.000000,75.757576,65536.000000,50.000000,2048.000000,16.000000,1024.000000,8.000000,1.000000,29782.734375,78.990000,3773.437500,13.990000,37734.375000,9433.593750,65536.000000,512.000000,1.000000,6000-0000-0000-0000-0000-0000-0000-0002,1.000000,65536.000000,24.242424,65536.000000,50.000000,4.000000,1.000000,8192.000000,4096.000000,0.000000,15.618750,99.960000,0.000000,0.000000,15.625000,15.625000,8.000000,0.000000,0.000000,$
  11/18/2026,11:06:50,1000000000000A00,0.085000,24.300000,0.419000,5.000000,0.060000,18.300000,0.296000,4.000000,4000000.000000,0.000000,1024.000000,4.000000,1712.000000,33283.000000,1500000.000000,0.000000,512.000000,1024.000000,632.000000,17629.000000,4188320.000000,0.500000,1024.000000,19.500000,1712.000000,33283.000000,1569520.000000,0.500000,512.000000,27.500000,632.000000,17629.000000,837620.000000,4.000000,1024.000000,20.000000,342.000000,6656.000000,523100.000000,4.000000,512.000000,28.000000,210.000000,5876.000000,819200.000000,66268.000000,8.000000,512.000000,8568963.000000,4538728.000000,3177120.000000,69.000000,2300949.000000,26.000000,407697.000000,4.000000,2708646.000000,31.000000,45133605.000000,9.000000,180534420.000000,39.000000,9026699.000000,1.000000,22566747.000000,4.000000,91401612.000000,2856300.000000,5550.000000,5.000000,6660.000000,6.000000,116630310.000000,13884492.000000,11.000000,11107638.000000,9.000000,91638180.000000,78.000000,8330673.000000,3330.000000,6.000000,2750.000000,4.000000,2,270336.000000,131072.000000,6000-0000-0000-0000-0000-0000-0000-0001,2.000000,204800.000000,75.757576,65536.000000,50.000000,2048.000000,16.000000,1024.000000,8.000000,1.000000,29799.140625,78.990000,3775.781250,13.990000,37757.812500,9439.453125,65536.000000,512.000000,1.000000,6000-0000-0000-0000-0000-0000-0000-0002,1.000000,65536.000000,24.242424,65536.000000,50.000000,4.000000,1.000000,8192.000000,4096.000000,0.000000,15.618750,99.960000,0.000000,0.000000,15.625000,15.625000,8.000000,0.000000,0.000000,$

A new run in the same minute writes into the same folder and starts each
file again.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=1 hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=10 -csv_folder=csv >/dev/null
  [2]
  $ wc -l csv/*/*
     2 csv/1000000000000A00_11-18_11-6/1000000000000A00_cache_statistics.csv
     2 csv/1000000000000A00_11-18_11-6/1000000000000A00_cache_statistics_summary.csv
     2 csv/1000000000000A00_11-18_11-6/1000000000000A00_host_pcie_statistics.csv
     2 csv/1000000000000A00_11-18_11-6/1000000000000A00_lun_cache_statistics.csv
     8 total

The peer adapter: no counter beyond two, a LUN of its own and a mirror LUN.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=1 hostcli -zek show cache_statistics -zek=1000000000000B00 -interval=10 -csv_folder=csv >/dev/null
  [2]
  $ cat csv/1000000000000B00_*/1000000000000B00_cache_statistics.csv
  Date,Time,Adapter ID,UpTime,Cache Pool Max MB,
  11/18/2026,11:06:40,1000000000000B00,1100,409600,
  $ cat csv/1000000000000B00_*/1000000000000B00_lun_cache_statistics.csv
  Date,Time,Adapter ID,Number of Cached LUNs,Total LUN Size,Total Cacheable LUN Size,LUN 1 WWULN, Cache Type, Size (Bytes), Ratio of this LUN Size to Total LUN Size, Max Cacheable Size (Bytes), Ratio of this LUN Cacheable Size to Total LUN Cacheable Size, Max Read Size to be Cached, Min Read Size to be Cached, Max Write Size to be Cached, Min Write Size to be Cached, Number of Locked Range, Cache Hit (Read Load) (Bytes), Cache Hit (Read Load) %, Cache Hit (Write Load) (Bytes), Cache Hit (Write Load) %, Total data read by host (Bytes), Total data written by host (bytes), Clean Cache in-use (Bytes), Dirty Cache in-use (Bytes), Locked Cache in-use (Bytes),Mirror LUN 1 WWULN, Size (Bytes), Dirty (Bytes),
  11/18/2026,11:06:40,1000000000000B00,1,107374182400.000000,107374182400.000000,6000-0000-0000-0000-0000-0000-0000-0004,1.000000,107374182400.000000,100.000000,107374182400.000000,100.000000,2048.000000,1.000000,2048.000000,1.000000,0.000000,69555200.000000,55.000000,0.000000,0.000000,126464000.000000,39680000.000000,20768000.000000,0.000000,0.000000,6000-0000-0000-0000-0000-0000-0000-0001,214748364800.000000,536870912.000000,
  $ cut -d, -f88- csv/1000000000000B00_*/1000000000000B00_cache_statistics_summary.csv
  				  Number of Cached LUNs, Total LUN Size (MB), Total Cacheable LUN Size (MB),LUN 1 WWULN, Cache Type, Size (MB), Ratio of this LUN Size to Total LUN Size, Max Cacheable Size (MB), Ratio of this LUN Cacheable Size to Total LUN Cacheable Size, Max Read Size to be Cached (KB), Min Read Size to be Cached (KB), Max Write Size to be Cached (KB), Min Write Size to be Cached (KB), Number of Locked Range, Cache Hit (Read Load) (MB), Cache Hit (Read Load) %, Cache Hit (Write Load) (MB), Cache Hit (Write Load) %, Total data read by host (MB), Total data written by host (MB), Clean Cache in-use (MB), Dirty Cache in-use (MB), Locked Cache in-use (MB),Mirror LUN 1 WWULN, Size (MB), Dirty (MB),
  1,102400.000000,102400.000000,6000-0000-0000-0000-0000-0000-0000-0004,1.000000,102400.000000,100.000000,102400.000000,100.000000,2048.000000,1.000000,2048.000000,1.000000,0.000000,66.333008,55.000000,0.000000,0.000000,120.605469,37.841797,19.805908,0.000000,0.000000,6000-0000-0000-0000-0000-0000-0000-0001,204800.000000,512.000000,

A folder whose parent does not exist cannot be made: the first cycle ends
the command with 55 and the text of the failed open, after the banner and
before any of the cycle's text. So for a folder that is a file, one that
cannot be written, and a disk that is full (nothing of the row stays).

  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=10 -csv_folder=none/deeper
  [ Device 0 on local host ]
  
  \r             \r*** Unknown return code 55 -- Unable to open file "none/deeper/1000000000000A00_11-18_11-6/1000000000000A00_cache_statistics.csv", (No such file or directory) (esc)
  [55]
  $ touch plainfile
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=10 -csv_folder=plainfile
  [ Device 0 on local host ]
  
  \r             \r*** Unknown return code 55 -- Unable to open file "plainfile/1000000000000A00_11-18_11-6/1000000000000A00_cache_statistics.csv", (Not a directory) (esc)
  [55]
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=10 -csv_folder=/proc
  [ Device 0 on local host ]
  
  \r             \r*** Unknown return code 55 -- Unable to open file "/proc/1000000000000A00_11-18_11-6/1000000000000A00_cache_statistics.csv", (No such file or directory) (esc)
  [55]
  $ mkdir -p full/1000000000000A00_11-18_11-6
  $ ln -s /dev/full full/1000000000000A00_11-18_11-6/1000000000000A00_lun_cache_statistics.csv
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek show cache_statistics -zek=1000000000000A00 -interval=10 -csv_folder=full
  [ Device 0 on local host ]
  
  \r             \r*** Unknown return code 55 -- Unable to write file "full/1000000000000A00_11-18_11-6/1000000000000A00_lun_cache_statistics.csv", (No space left on device) (esc)
  [55]
  $ find full -type f | sort | xargs wc -l
     2 full/1000000000000A00_11-18_11-6/1000000000000A00_cache_statistics.csv
     2 full/1000000000000A00_11-18_11-6/1000000000000A00_host_pcie_statistics.csv
     4 total
  $ ls full/*/
  1000000000000A00_cache_statistics.csv
  1000000000000A00_host_pcie_statistics.csv
  1000000000000A00_lun_cache_statistics.csv

At 1000 cached LUNs and more, the count in the summary shows its first three
digits.

  $ hbasim generate 1 1300 --cached 1000 >/dev/null
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=1 hostcli -zek show cache_statistics -zek=0 -interval=10 -csv_folder=csv > /dev/null
  [2]
  $ cut -d, -f88-89 csv/2000001B33000000_*/2000001B33000000_cache_statistics_summary.csv | tail -n 1
  100,32788480.000000
  $ cut -d, -f4-6 csv/2000001B33000000_*/2000001B33000000_lun_cache_statistics.csv | tail -n 1
  100,34381213204480.000000,34961033789440.000000

Between two cycles (stats/between-cycles.py acts while the command is held
inside a cycle whose text fills the pipe; a generated SAN of 100 cached LUNs
makes every cycle long enough): another process clears the statistics, and
the next cycle's changes are negative, printed with their sign; the counts
start again from the clear.

  $ hbasim generate 1 200 --cached 100 >/dev/null
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=3 python3 $TESTDIR/stats/between-cycles.py '\n\n 00:10' 'hostcli -zek clear statistics -zek=0' hostcli -zek show cache_statistics -zek=0 -interval=10 -delta > cleared.txt
  [2]
  $ grep "Up Time\|^RAM Read\|^ [0-9]" cleared.txt
      Korvane Adapter Up Time: 0:0:0
  RAM Read Cache Hits from Read:     329356800 (10%)
   00:10
      Korvane Adapter Up Time: 0:0:10 (+0:0:10)
  RAM Read Cache Hits from Read:     329394920 (  38120) (10%)
   00:20
      Korvane Adapter Up Time: 0:0:20 (+0:0:10)
  RAM Read Cache Hits from Read:         76240 (-329318680) (10%)
   00:30

The adapter goes offline between cycles: from then on a cycle shows the
banner and its clock only, and the loop goes on until interrupted.

  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=4 python3 $TESTDIR/stats/between-cycles.py '\n\n 00:10' 'hbasim offline adapter 2000001B33000000' hostcli -zek show cache_statistics -zek=0 -interval=10 -delta > offline.txt
  [2]
  $ grep -c "Up Time" offline.txt
  2
  $ tail -n 9 offline.txt
  
  
  
   00:30
  [ Device 0 on local host ]
  
  
  
   00:40
  $ hbasim online adapter 2000001B33000000 >/dev/null

A CSV file removed during the run comes back with its title and the rows of
the cycles after.

  $ mkdir removed
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=3 python3 $TESTDIR/stats/between-cycles.py '\n\n 00:10' 'rm removed/*/*_host_pcie_statistics.csv' hostcli -zek show cache_statistics -zek=0 -interval=10 -csv_folder=removed >/dev/null
  [2]
  $ wc -l removed/*/*
       4 removed/2000001B33000000_11-18_11-6/2000001B33000000_cache_statistics.csv
       4 removed/2000001B33000000_11-18_11-6/2000001B33000000_cache_statistics_summary.csv
       2 removed/2000001B33000000_11-18_11-6/2000001B33000000_host_pcie_statistics.csv
       4 removed/2000001B33000000_11-18_11-6/2000001B33000000_lun_cache_statistics.csv
      14 total
  $ cut -d, -f1-4 removed/*/*_host_pcie_statistics.csv
  Date,Time,Adapter ID,Read Diff Time
  11/18/2026,11:07:00,2000001B33000000,1000
