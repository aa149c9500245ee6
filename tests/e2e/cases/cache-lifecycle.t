A LUN through its whole life in the cache, each step a process of its own
that sees what the one before it left.

  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2 | grep -c "Cache Info"
  0
  [1]
  $ hostcli -zek enable cache -zek=0 -mode=read_write_back -profile=media -max_cache=1024 -max_write=512 -lun_serial=SV0B2A002
  [ Device 0 on local host ]
  
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2 | grep -E "Mode:|Profile|limited|will be cached"
          Mode: Read_Write_Back
          Profile Type: Media Server
          Cache usage for this LUN is limited to 1GB
          Reads with size  0 KB to 1024 KB will be cached
          Writes with size 0 KB to 512 KB will be cached
  $ hostcli -zek modify cache -zek=0 -mode=read_only -profile=media -max_cache=1024 -fc_target=21000024FF3C5A10 -lun_number=2 | sed -n 3p
  Successfully modified caching for LUN  -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2 | grep -E "Mode:|will be cached"
          Mode: Read_Only
          Reads with size  0 KB to 1024 KB will be cached
          Writes with size 0 KB to 512 KB will be cached
  $ hostcli -zek lock cache -zek=0 -lun_start_lba=4096 -lun_size_lba=1024 -fc_target=21000024FF3C5A10 -lun_number=2 | sed -n 3p
  Successfully locked cache for LBA range 4096 to 1024, -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2 | grep -- -lun_start_lba
          -lun_start_lba=4096 -lun_size_lba=1024
  $ hostcli -zek unlock cache -zek=0 -lun_start_lba=4096 -lun_size_lba=1024 -fc_target=21000024FF3C5A10 -lun_number=2 | sed -n 3p
  Successfully unlocked cache for LBA range 4096 to 1024, -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2 | grep -c -- -lun_start_lba
  0
  [1]
  $ LD_PRELOAD=$ZEK_SHIM hostcli -zek flush cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2 -sync
  [ Device 0 on local host ]
  
  LUN 2  1st VP Group  on Target: 2100-0024-FF3C-5A10
  .. flushing completed
  
  $ hostcli -zek disable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2
  [ Device 0 on local host ]
  
  Successfully disabled caching for LUN   -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2 | grep -c "Cache Info"
  0
  [1]
  $ hostcli -zek modify cache -zek=0 -mode=read_only -fc_target=21000024FF3C5A10 -lun_number=2 >/dev/null
  [255]
