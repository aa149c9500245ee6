show statistics once, on the pinned SAN: the host figures (sizes in their
units, latencies in milliseconds to three places) and the cache summary,
whose percentages are hundredths shown as whole part and remainder (2005
reads 20.5, 5 reads 0.5, 7899 reads 78.99); the record of the adapter's
figures goes into the result file.

  $ hbasim reset $TESTDIR/scenarios/stats-pinned.json >/dev/null
  $ hostcli -zek show statistics -zek=1000000000000A00 -result
  [ Device 0 on local host ]
  
      [Host Statistics]
  
      Average Read IOs/Sec              = 1712
      Min/Max/Average Read IO Size      = 512Bytes / 1MB / 4KB
      Average Read Bandwidth            = 32.50MB / sec
      Min/Max/Average Read IO Latency   = 0.085 / 24.300 / 0.419 milliseconds
      Average Write IOs/Sec             = 632
      Min/Max/Average Write IO Size     = 512Bytes / 512KB / 1MB
      Average Write Bandwidth           = 17.21MB / sec
      Min/Max/Average Write IO Latency  = 0.060 / 18.300 / 0.296 milliseconds
  
  
      [Global Cache Statistics]
  
      Total Cache Capacity             = 800GB
      Cache Capacity Used (SSD+RAM)    = 64.59GB	(20.5% of capacity)
      Read Data                        = 2.77TB
      Cache Hits (Read Load)           = 2.19TB	(78.99% of Read Data)
      Cache Hits (Write Load)          = 398.35GB	(0.5% of Read Data)
      Cache Hits (Total)               = 2.58TB	(79.4% of Read Data)
  
  $ od -A d -t x1 show_statistics.dat
  0000000 20 00 00 00 00 00 00 00 02 00 00 00 67 00 00 00
  0000016 06 00 00 00 04 00 00 00 1f 00 00 00 24 00 00 00
  0000032 00 00 00 00 64 00 00 00 00 00 00 00 00 00 00 00
  0000048 00 00 00 00 18 00 00 00 48 00 00 00 00 00 00 00
  0000064 00 00 00 00 c8 00 00 00 00 00 40 26 10 00 00 00
  0000080 00 44 0e 95 c7 02 00 00 91 98 db 96 63 00 00 00
  0000096 72 de d4 13 32 02 00 00 e8 03 00 00 ed 03 00 00
  0000112 db 1e 00 00 05 00 00 00 00 00 00 00 00 00 00 00
  0000128 00 00 00 00 00 00 00 00 00 00 00 00
  0000140

An interval of 0 shows it once, with the result; a loop never gives one.
Each cycle ends with two empty lines and the clock; SIGINT ends it with 2.

  $ hostcli -zek show statistics -zek=1000000000000A00 -interval=0 -result=zero.dat > zero.txt
  $ cmp zero.dat show_statistics.dat
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=2 hostcli -zek show statistics -zek=1000000000000A00 -interval=10 -result=loop.dat
  [ Device 0 on local host ]
  
      [Host Statistics]
  
      Average Read IOs/Sec              = 1712
      Min/Max/Average Read IO Size      = 512Bytes / 1MB / 4KB
      Average Read Bandwidth            = 32.50MB / sec
      Min/Max/Average Read IO Latency   = 0.085 / 24.300 / 0.419 milliseconds
      Average Write IOs/Sec             = 632
      Min/Max/Average Write IO Size     = 512Bytes / 512KB / 1MB
      Average Write Bandwidth           = 17.21MB / sec
      Min/Max/Average Write IO Latency  = 0.060 / 18.300 / 0.296 milliseconds
  
  
      [Global Cache Statistics]
  
      Total Cache Capacity             = 800GB
      Cache Capacity Used (SSD+RAM)    = 64.59GB	(20.5% of capacity)
      Read Data                        = 2.77TB
      Cache Hits (Read Load)           = 2.19TB	(78.99% of Read Data)
      Cache Hits (Write Load)          = 398.35GB	(0.5% of Read Data)
      Cache Hits (Total)               = 2.58TB	(79.4% of Read Data)
  
  
   00:10
  [ Device 0 on local host ]
  
      [Host Statistics]
  
      Average Read IOs/Sec              = 1712
      Min/Max/Average Read IO Size      = 512Bytes / 1MB / 4KB
      Average Read Bandwidth            = 32.50MB / sec
      Min/Max/Average Read IO Latency   = 0.085 / 24.300 / 0.419 milliseconds
      Average Write IOs/Sec             = 632
      Min/Max/Average Write IO Size     = 512Bytes / 512KB / 1MB
      Average Write Bandwidth           = 17.21MB / sec
      Min/Max/Average Write IO Latency  = 0.060 / 18.300 / 0.296 milliseconds
  
  
      [Global Cache Statistics]
  
      Total Cache Capacity             = 800GB
      Cache Capacity Used (SSD+RAM)    = 64.60GB	(20.5% of capacity)
      Read Data                        = 2.77TB
      Cache Hits (Read Load)           = 2.19TB	(78.99% of Read Data)
      Cache Hits (Write Load)          = 398.38GB	(0.5% of Read Data)
      Cache Hits (Total)               = 2.58TB	(79.4% of Read Data)
  
  
   00:20
  [2]
  $ test -e loop.dat || echo "no result file"
  no result file

Bad input: an adapter that cannot be found, intervals out of range or with a
decimal point, and an adapter that fails to answer.

  $ hostcli -zek show statistics -zek=5
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek show statistics -zek=1000000000000A00 -interval=100001
  \r             \r*** ZEKCLI_PARSE_FAIL -- -interval modifier requires a number in the range 0 to 100000 (esc)
  [52]
  $ hostcli -zek show statistics -zek=1000000000000A00 -interval=2.5
  \r             \r*** ZEKCLI_PARSE_FAIL -- -interval modifier does not allow decimal point. (esc)
  [52]
  $ hbasim fault 1000000000000A00 getStatistics 1206 >/dev/null
  $ hostcli -zek show statistics -zek=1000000000000A00
  \r             \r*** Object not found (esc)
  [255]
  $ hbasim fault 1000000000000A00 getAdapterStatistics 1206 >/dev/null
  $ LD_PRELOAD=$ZEK_SHIM ZEK_SHIM_CYCLES=2 hostcli -zek show statistics -zek=1000000000000A00 -interval=10
  [ Device 0 on local host ]
  
  \r             \r*** Object not found (esc)
  [255]
