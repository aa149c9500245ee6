With -zek, show lun shows the selected LUN paths as that adapter sees them.
A LUN that this adapter caches shows its WWULN and serial keywords, its
record, its paths, its I/O statistics, the cache settings and the cache
statistics. The figures of the paths and the statistics are the adapter's
and are masked here.

  $ hostcli -zek show lun -zek=0 -lun_number=0 -fc_target=5006-0160-39A0-1122 -vpgindex=1 | sed -E '/Port ID|I\/O Count|Read\/Write I\/O|Capacity Used|Read Data|Cache Hits/s/(=|:) .*/\1 (figure)/'
  [ Device 0 on local host ]
  
  -lun_number=0 -fc_target=5006-0160-39A0-1122
  -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0001
  -lun_serial="APM00123400001"
      Target     = 5006-0160-39A0-1122
      LUN Number = 0
      LUN State  = 0x200801 ( Online, Mapped, Cache Ready)
      LUN Type   = Direct Access
      Vendor ID      = SIMSTOR
      Product ID     = VIRTUAL-DISK
      Revision Level = 0001
      Serial Number  = 0000A1B2C3D40001
      Page 0x80 serial number = APM00123400001
      WWULN = 6006-0160-A1B2-C3D4-E5F6-0000-0000-0001
      Size  = 200GB, (419430400 blocks)
      LUN Path Info:
              WWPN = 5006-0160-39A0-1122
              WWNN = 5006-0160-89A0-1122
              Port ID = (figure)
              Status:  Active Current Optimized
              WWPN = 5006-0168-39A0-1122
              WWNN = 5006-0160-89A0-1122
              Port ID = (figure)
              Status:  Passive
      LUN I/O Statistics:
          I/O Count Read/Write: (figure)
          Read/Write I/O: (figure)
      LUN Cache Info:
          Mode: Read_Write_Back (mirrored at adapter 2000001B32A10D00)
          Mirror State:  0x101 (Configured, In Synchrony)
          Mirror Flag: Peer Mirror Cache Done
          Profile Type: ERP
          Cache usage for this LUN is limited to 64GB
          Reads with size  0 KB to 1024 KB will be cached
          Writes with size 0 KB to 1024 KB will be cached
      (LBA ranges are specified in 512 byte logical blocks)
      LBA ranges locked in cache:
          -lun_start_lba=0 -lun_size_lba=2048
          -lun_start_lba=1048576 -lun_size_lba=8192
  
      LUN Cache Statistics:
          Cache Capacity Used (Clean) = (figure)
          Cache Capacity Used (Dirty) = (figure)
          Cache Capacity Used (Locked) = (figure)
          Read Data                   = (figure)
          Cache Hits (Read Load))     = (figure)
          Cache Hits (Write Load)     = (figure)
          Cache Hits (Total)          = (figure)
  
  
  $ hostcli -zek show lun -zek=0 -lun_number=0 -fc_target=5006-0160-39A0-1122 -vpgindex=1 -result=one.dat -quiet
  $ wc -c < one.dat
  1616
  $ od -A d -t d4 -j 32 -N 16 one.dat
  0000032           0        1576           8           1
  0000048
  $ od -A d -t d4 -j 48 -N 4 one.dat
  0000048        1564
  0000052
  $ od -A d -t d4 -j 1612 -N 4 one.dat
  0001612           0
  0001616

The adapter that mirrors the cache sees the LUN cached on its peer: only the
mirror's text follows, no cache settings and no cache statistics.

  $ hostcli -zek show lun -zek=1 -lun_number=0 -fc_target=5006-0160-39A0-1122 -vpgindex=1 | sed -n '25,$p' | sed -E '/Port ID|I\/O Count|Read\/Write I\/O|Capacity Used|Read Data|Cache Hits/s/(=|:) .*/\1 (figure)/'
              Status:  Passive
      LUN I/O Statistics:
          I/O Count Read/Write: (figure)
          Read/Write I/O: (figure)
      (LUN is cached on remote adapter 2000001B32A10C00)
          Mirror State:  0x101 (Configured, In Synchrony)
          Mirror Flag: Peer Mirror Cache Done
          Mirror LUN Dirty Cache Capacity Used: (figure)
  

A LUN cached on a peer with no mirror shows nothing more than the remark.

  $ hostcli -zek show lun -zek=0 -lun_number=1 -fc_target=2100-0024-FF3C-5A10 -vpgindex=1 | sed -n '20,$p' | sed -E '/Port ID|I\/O Count|Read\/Write I\/O|Capacity Used|Read Data|Cache Hits/s/(=|:) .*/\1 (figure)/'
              Port ID = (figure)
              Status:  Active Current Optimized
      LUN I/O Statistics:
          I/O Count Read/Write: (figure)
          Read/Write I/O: (figure)
      (LUN is cached on remote adapter 2000001B32A10D00)
  
  

An offline LUN shows its identity and the offline remark only; a text WWULN is
shown in quotes.

  $ hostcli -zek show lun -zek=0 -lun_number=3 -fc_target=2100-0024-FF3C-5A10 -vpgindex=1
  [ Device 0 on local host ]
  
  -lun_number=3 -fc_target=2100-0024-FF3C-5A10
  -lun_wwuln=600A-0B80-002A-1C3D-0000-0000-52B2-A003
      Target     = 2100-0024-FF3C-5A10
      LUN Number = 3
      ( Offline )
  
  
  $ hostcli -zek show lun -zek=0 -is_target=iqn.2004-04.com.simstor:vault.tgt01 -lun_number=0 | sed -n '3,5p'
  -lun_number=0 -is_target=iqn.2004-04.com.simstor:vault.tgt01
  -lun_wwuln="vault.example:lun-archive-07"
  -lun_serial="VLT07"

Nothing selected: the resolution's words, and a result of the 8-byte header
with a count of 0.

  $ hostcli -zek show lun -zek=0 -lun_number=9 -fc_target=2100-0024-FF3C-5A10 -result=none.dat
  [ Device 0 on local host ]
  
  No LUNs found for  -fc_target=2100-0024-FF3C-5A10 -lun_number=9
  
  $ wc -c < none.dat
  52
  $ od -A d -t d4 -j 32 -N 16 none.dat
  0000032           0          12           8           0
  0000048

A LUN named in full that the adapter does not have fails alone; the command
succeeds and its result record carries the failure's code.

  $ hostcli -zek show lun -zek=0 -lun_number=9 -fc_target=2100-0024-FF3C-5A10 -vpgindex=1 -result=gone.dat
  [ Device 0 on local host ]
  
  $ od -A d -t d4 -j 32 -N 16 gone.dat
  0000032        1206          12           8           0
  0000048

Keywords that do not resolve fail as the resolution says.

  $ hostcli -zek show lun -zek=0 -lun_wwuln=X -lun_serial=Y
  \r             \r*** ZEKCLI_PARSE_FAIL -- Cannot use more than one of -lun_wwuln, -lun_serial, or -lun_any_wwuln (esc)
  [52]

Without -zek every LUN is shown once, from the adapter that caches it or
else from the first that reaches it, under the list of adapters that reach
it; the LUN keywords are not looked at.

  $ hostcli -zek show lun -lun_number=1 | grep -c '^Adapters with access to this LUN:'
  9
  $ hostcli -zek show lun | sed -n '1,6p'
  Adapters with access to this LUN:
      -zek=2000001B32A10C00  [Caching Adapter]
      -zek=2000001B32A10D00
      -zek=2000001B32A10E00
  -lun_number=0 -fc_target=5006-0160-39A0-1122
  -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0001
  $ hostcli -zek show lun | grep -A3 -e '^-lun_number=1 -fc_target=2100-0024-FF3C-5A10'
  -lun_number=1 -fc_target=2100-0024-FF3C-5A10
  -lun_wwuln=600A-0B80-002A-1C3D-0000-0000-52B2-A001
  -lun_serial="SV0B2A001"
      Target     = 2100-0024-FF3C-5A10
  $ hostcli -zek show lun | grep -e 'LUN Cache Info' -e 'cached on remote' -e 'not cached'
      LUN Cache Info:
      (LUN is not cached)
      (LUN is not cached)
      LUN Cache Info:
      (LUN is not cached)
      (LUN is not cached)
      (LUN is not cached)

The offline LUN's group record names no target, so no adapter can show it:
the other eight records are in the result, and its code is 2, as some LUNs
were shown and one was not.

  $ hostcli -zek show lun -quiet -result=all.dat
  $ wc -c < all.dat
  12564
  $ od -A d -t d4 -j 32 -N 16 all.dat
  0000032           2       12524           8           8
  0000048

The adapter's own plumbing LUNs (state bits 27, 26 and 19, and bits 7 and 14
together) are passed over without a word.

  $ hbasim reset $TESTDIR/scenarios/lun-plumbing.json > /dev/null
  $ hostcli -zek show lun -zek=0 | grep -e '^-lun_number' -e 'LUN State'
  -lun_number=0 -fc_target=5006-0160-3BE0-1234
      LUN State  = 0x801 ( Online, Mapped)
  -lun_number=40 -fc_target=5006-0160-3BE0-1234
      LUN State  = 0x48801 ( Online, Mapped, Remote, Storage Media SSD)

Through a remote agent, the adapters are named behind the agent's keyword.

  $ hbasim reset > /dev/null
  $ hostcli -zek show lun -agent=127.0.10.1 | grep -A2 '^Adapters with' | sed -n '5,7p'
  Adapters with access to this LUN:
      -agent=127.0.10.1 -zek=2000001B32B20100
  -lun_number=1 -fc_target=5006-0160-39A0-1122
