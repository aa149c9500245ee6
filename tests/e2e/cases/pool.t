show pool shows how the adapter's SSD storage is used. The line on data
LUNs is shown only by adapters that can hold data LUNs. The result record is
the 64-byte pool record itself.

  $ hostcli -zek show pool -zek=0 -result=pool.dat
  [ Device 0 on local host ]
  
      Total SSD Storage                     = 1.45TB
      Free SSD Storage                      = 640.11GB
      SSD Storage Configured for Cache Pool = 800GB
      SSD Storage Used for Cache Pool       = 12.50GB
      SSD Storage Used for Data LUNs        = 50GB
  
  $ wc -c < pool.dat
  108
  $ od -A d -t d4 -j 32 -N 8 pool.dat
  0000032           0          68
  0000040
  $ hostcli -zek show pool -zek=1
  [ Device 1 on local host ]
  
      Total SSD Storage                     = 1.45TB
      Free SSD Storage                      = 890.11GB
      SSD Storage Configured for Cache Pool = 600GB
      SSD Storage Used for Cache Pool       = 31.25GB
  
  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hostcli -zek show pool -zek=1
  [ Device 1 on local host ]
  
      Total SSD Storage                     = 0
      Free SSD Storage                      = 0
      SSD Storage Configured for Cache Pool = 0
      SSD Storage Used for Cache Pool       = 0
  
  $ hbasim reset > /dev/null

set pool sets the size of the cache pool; a bare number counts in
gigabytes, so -cache=8 asks for 8192 MB.

  $ hostcli -zek set pool -zek=0 -cache=8 -result=set.dat
  [ Device 0 on local host ]
  
  Pool usage successfully changed.
  $ od -A d -t d4 -j 32 -N 12 set.dat
  0000032           0           0
  0000040
  $ hostcli -zek show pool -zek=0 | grep Configured
      SSD Storage Configured for Cache Pool = 8GB
  $ hbasim export | grep -m1 cachePoolBytes
     "cachePoolBytes": 8589934592,
  $ hostcli -zek set pool -zek=0 -cache=512GB | tail -1
  Pool usage successfully changed.
  $ hostcli -zek show pool -zek=0 | grep Configured
      SSD Storage Configured for Cache Pool = 512GB

A size out of the adapter's range (under 4 GB, or more than its drives hold
beside the data LUNs) is refused with 156 and the range in whole GB of all
its SSD storage; the pool stays as it was. 4MB reaches the adapter as 4 MB,
and a size beyond what 32 bits of megabytes hold is sent as the largest.

  $ hostcli -zek set pool -zek=0 -cache=4MB
  \r             \r*** The requested pool size is out of range for the configured drives -- Specified cache size must be in range 4GB to 1490 ( -cache=1490) (esc)
  [156]
  $ hostcli -zek set pool -zek=0 -cache=1400
  \r             \r*** The requested pool size is out of range for the configured drives -- Specified cache size must be in range 4GB to 1490 ( -cache=1490) (esc)
  [156]
  $ hostcli -zek set pool -zek=0 -cache=4097TB
  \r             \r*** The requested pool size is out of range for the configured drives -- Specified cache size must be in range 4GB to 1490 ( -cache=1490) (esc)
  [156]
  $ hostcli -zek set pool -zek=0 -cache=8388607PB
  \r             \r*** ZEKCLI_PARSE_FAIL -- -cache modifier value is too large (esc)
  [52]
  $ hostcli -zek show pool -zek=0 | grep Configured
      SSD Storage Configured for Cache Pool = 512GB

Values that are not a size are refused before the adapter is asked.

  $ hostcli -zek set pool -zek=0 -cache=0
  \r             \r*** ZEKCLI_PARSE_FAIL -- -cache modifier requires a numeric value 1 or greater (esc)
  [52]
  $ hostcli -zek set pool -zek=0 -cache=1.5
  \r             \r*** ZEKCLI_PARSE_FAIL -- -cache modifier does not allow decimal point. (esc)
  [52]
  $ hostcli -zek set pool -zek=0 -cache=
  *** ZEKCLI_PARSE_FAIL
      
      cache modifier requires a value
      Syntax: set pool
  	-cache=<size>
  	-zek=<adapter>
  
  [52]
  $ hostcli -zek set pool -zek=0
  Error:  -cache modifier must be specified
    Command syntax:
      set pool
  	-cache=<size>
  	-zek=<adapter>
  
  Use "-?" on the command line for help
  $ hostcli -zek show pool -zek=0 | grep Configured
      SSD Storage Configured for Cache Pool = 512GB

The range text needs the pool record; when the adapter cannot give it, its
code is returned instead.

  $ hbasim fault zek-prod-a getPoolInfo 1006
  $ hostcli -zek set pool -zek=0 -cache=2
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]

remove cache_pool removes the pool: refused while LUNs are cached from it,
done once they are not. It writes no result record.

  $ hostcli -zek remove cache_pool -zek=0
  \r             \r*** The cache pool is in use by cached LUNs (esc)
  [255]
  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hostcli -zek remove cache_pool -zek=0 -result=removed.dat
  [ Device 0 on local host ]
  
  Storage cache pool has been removed successfully.
  
  $ ls removed.dat
  ls: cannot access 'removed.dat': No such file or directory
  [2]
  $ hostcli -zek show pool -zek=0 | grep Configured
      SSD Storage Configured for Cache Pool = 0
  $ hostcli -zek remove pool -zek=0
  "remove pool" is not a valid command
  *** ZEKCLI_PARSE_FAIL
      "remove pool" is not a valid command
  [52]

An adapter that stops answering once it has been found gets its code.

  $ hbasim fault zek-new setPoolSize 1006
  $ hostcli -zek set pool -zek=0 -cache=10
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hbasim fault zek-new removePool 1006
  $ hostcli -zek remove cache_pool -zek=0
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hbasim fault zek-new getPoolInfo 1006
  $ hostcli -zek show pool -zek=0
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]

A result record that cannot be written makes the command fail with 55; the
change itself is made.

  $ hostcli -zek show pool -zek=0 -result=/nonexistent/r.dat -quiet
  [55]
  $ hostcli -zek set pool -zek=0 -cache=50 -result=/nonexistent/r.dat -quiet
  [55]
  $ hostcli -zek show pool -zek=0 | grep Configured
      SSD Storage Configured for Cache Pool = 50GB
