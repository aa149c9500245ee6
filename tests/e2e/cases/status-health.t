show health shows the adapter's PCIe links, temperatures and drivers, and
show memory its memory pools. Both show the banner; their result records
hold the 360-byte health record and the 72-byte memory record.

  $ hostcli -zek show health -zek=1 -result
  [ Device 1 on local host ]
  
      PCIe port 0
          LINK_UP
          Vendor/Device = 0x1077 / 0x2831 (Redwing)
          GEN 2 (5.0 Gbits/sec)
          4x4
      PCIe port 1
          LINK_UP, (FC ASIC)
          Vendor/Device = 0x1077 / 0x2533 (Bluestem)
          GEN 2 (5.0 Gbits/sec)
          4x4
      PCIe port 3
          LINK_UP, (SAS ASIC)
          Vendor/Device = 0x1077 / 0x9445 (Bluestem)
          GEN 2 (5.0 Gbits/sec)
          4x4
      Temperature (Front/Rear/CPU): 42 / 45 / 59 (Centigrade)
      Temperature (FC Chip Junction): 52 (Centigrade)
      Internal drivers loaded OK:   ADAPTER, LED, ENDPOINT, BRAPP, FC, SCSIMID, MV94XX
      Internal drivers not loaded:  MPTSAS, MPI32XX, MVIDMA, MVXDMA, BBRAM
      System Uptime: 1:12:1
  
  
  $ od -A d -t d4 -j 32 -N 8 show_health.dat
  0000032           0         364
  0000040
  $ stat -c %s show_health.dat
  404
  $ hostcli -zek show memory -zek=1 -result
  [ Device 1 on local host ]
  
      Physical (free/total)        = 1311712 / 4194304
      Buffer pool (free/total)     = 40898 / 65536
      Process Blocks (free/total)  = 431 / 512
      Request Blocks (free/total)  = 7938 / 8192
      Event Blocks (free/total)    = 2011 / 2048
      Control Blocks (free/total)  = 977 / 1024
  
  
  $ od -A d -t d4 -j 32 -N 8 show_memory.dat
  0000032           0          76
  0000040
  $ stat -c %s show_memory.dat
  116

An adapter that does not answer is reported by show health before the
health is asked for:

  $ hbasim fault 2000001B32A10D00 getAdapterInfo 1000 >/dev/null
  $ hostcli -zek show health -zek=1
  \r             \r*** General failure (esc)
  [255]
  $ hbasim fault 2000001B32A10D00 getMemoryInfo 1000 >/dev/null
  $ hostcli -zek show memory -zek=1
  \r             \r*** General failure (esc)
  [255]
