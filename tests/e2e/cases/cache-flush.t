Writing dirty cache data back to the LUNs.

Without LUN keywords every LUN of the adapter is treated: controller and
sequential LUNs say their type, uncached data LUNs say so (the adapter's
own drives among them, which it presents as LUNs 256 and up of its internal
target), the peer's LUN gets the adapter's refusal in its line, and the
cached LUN starts flushing.
The command itself succeeds.

  $ hostcli -zek flush cache -zek=0
  [ Device 0 on local host ]
  
  LUN 0  1st VP Group  on Target: 5006-0160-39A0-1122 started flushing
  
  LUN 1  1st VP Group  on Target: 5006-0160-39A0-1122 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 31  on Target: 5006-0160-39A0-1122 NOT flushed, (SAN Controller LUN)
  
  LUN 0  1st VP Group  on Target: 5006-0168-39A0-1122 started flushing
  
  LUN 1  1st VP Group  on Target: 5006-0168-39A0-1122 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 1  1st VP Group  on Target: 2100-0024-FF3C-5A10 NOT flushed, (The LUN is cached on another adapter)
  
  LUN 2  1st VP Group  on Target: 2100-0024-FF3C-5A10 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 3  1st VP Group  on Target: 2100-0024-FF3C-5A10 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 8  on Target: 2100-0024-FF3C-5A10 NOT flushed, (Sequential Access)
  
  LUN 0  1st VP Group  on Target: iqn.2004-04.com.simstor:vault.tgt01 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 0  1st VP Group  on Target: 2100-001B-32A1-0C00 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 256  1st VP Group  on Target: 2100-001B-32A1-0C00 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 257  1st VP Group  on Target: 2100-001B-32A1-0C00 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 258  1st VP Group  on Target: 2100-001B-32A1-0C00 NOT flushed, (SAN Data LUN is not cached)
  
  LUN 259  1st VP Group  on Target: 2100-001B-32A1-0C00 NOT flushed, (SAN Data LUN is not cached)
  

Keywords that match nothing are an answer, not a failure.

  $ hostcli -zek flush cache -zek=0 -lun_number=9
  [ Device 0 on local host ]
  
  No LUNs found for  -lun_number=9
  

-sync waits until the adapter says the flush is over, with a dot per poll
(every 3 seconds); the dirty data is then gone. The test shim lets the waits
take no time and moves the simulated clock on by each.

  $ hbasim reset >/dev/null
  $ hbasim show | grep -c "512 MiB dirty"
  1
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek flush cache -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 -sync
  [ Device 0 on local host ]
  
  LUN 0  1st VP Group  on Target: 5006-0160-39A0-1122
  .. flushing completed
  
  $ hbasim show | grep -c "dirty"
  0
  [1]

Several LUNs with -sync are waited for one after the other.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_back -fc_target=21000024FF3C5A10 -lun_number=2 >/dev/null
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek flush cache -zek=0 -fc_target=21000024FF3C5A10 -sync | grep -v "NOT flushed" | grep .
  [ Device 0 on local host ]
  LUN 2  1st VP Group  on Target: 2100-0024-FF3C-5A10
  .. flushing completed

A progress poll that fails ends the command with its code.

  $ hbasim fault zek-prod-a getCacheFlushProgress 1000 >/dev/null
  $ hostcli -zek flush cache -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 -sync
  [ Device 0 on local host ]
  
  LUN 0  1st VP Group  on Target: 5006-0160-39A0-1122
  \r             \r*** General failure (esc)
  [255]

A flush the adapter refuses is told in the LUN's line; the command still
succeeds.

  $ hbasim fault zek-prod-a startCacheFlush 1000 >/dev/null
  $ hostcli -zek flush cache -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1
  [ Device 0 on local host ]
  
  LUN 0  1st VP Group  on Target: 5006-0160-39A0-1122 NOT flushed, (General failure)
  
