Changing how a cached LUN is cached. What is not given keeps its present
value, except the profile (default) and the cache limit (none); a mirror is
never dropped by this command.

LUN ...0001 of the default SAN is cached write-back on device 0, with the
erp profile, a 64 GiB limit and a mirror on device 1.

  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep -E "Mode:|Profile|limited|will be cached"
          Mode: Read_Write_Back (mirrored at adapter 2000001B32A10D00)
          Profile Type: ERP
          Cache usage for this LUN is limited to 64GB
          Reads with size  0 KB to 1024 KB will be cached
          Writes with size 0 KB to 1024 KB will be cached

Without -mirror the mirror stays; without -mode the mode stays.

  $ hostcli -zek modify cache -zek=0 -max_read=64 -min_read=4 -lun_wwuln=60060160A1B2C3D4E5F6000000000001
  [ Device 0 on local host ]
  
  Successfully modified caching for LUN  -fc_target=5006-0160-39A0-1122 -lun_number=0
  
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep -E "Mode:|Profile|limited|will be cached"
          Mode: Read_Write_Back (mirrored at adapter 2000001B32A10D00)
          Profile Type: Default
          (Cache usage for this LUN is not limited)
          Reads with size  4 KB to 64 KB will be cached
          Writes with size 0 KB to 1024 KB will be cached

Sizes not given keep the values just set.

  $ hostcli -zek modify cache -zek=0 -mode=read_write_through -profile=exch -max_write=128 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep -E "Mode:|Profile|will be cached"
          Mode: Read_Write_Through (mirrored at adapter 2000001B32A10D00)
          Profile Type: Exchange
          Reads with size  4 KB to 64 KB will be cached
          Writes with size 0 KB to 128 KB will be cached

-use_default first returns the windows to the firmware defaults, then sends
what is given on top of them.

  $ hostcli -zek modify cache -zek=0 -use_default -max_write=256 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep -E "Mode:|will be cached"
          Mode: Read_Write_Through (mirrored at adapter 2000001B32A10D00)
          Reads with size  0 KB to 1024 KB will be cached
          Writes with size 0 KB to 256 KB will be cached

The reset is a request of its own: when the adapter refuses it, the second
request is never sent and its code is returned.

  $ hbasim fault zek-prod-a modifyCache 1000 >/dev/null
  $ hostcli -zek modify cache -zek=0 -use_default -max_write=8 -lun_wwuln=60060160A1B2C3D4E5F6000000000001
  \r             \r*** General failure (esc)
  [255]
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep "Writes with"
          Writes with size 0 KB to 256 KB will be cached

A mirror named on the line replaces the old one.

  $ hostcli -zek modify cache -zek=0 -mirror=2000001B32A10E00 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep "Mode:"
          Mode: Read_Write_Through (mirrored at adapter 2000001B32A10E00)

Refusals: a LUN that is not cached, a mode word that is no mode, sizes out
of order, a limit of 0, a mirror adapter that does not exist.

  $ hostcli -zek modify cache -zek=0 -mode=read_only -lun_wwuln=60060160A1B2C3D4E5F6000000000002
  \r             \r*** The LUN is not cached -- This command is for use on LUNs that are currently cached.  Please use the 'enable cache' command instead. (esc)
  [255]
  $ hostcli -zek modify cache -zek=0 -mode=fast -lun_wwuln=60060160A1B2C3D4E5F6000000000001
  \r             \r*** ZEKCLI_PARSE_FAIL -- "fast" is not recognized (esc)
  
  [52]
  $ hostcli -zek modify cache -zek=0 -min_write=300 -lun_wwuln=60060160A1B2C3D4E5F6000000000001
  \r             \r*** ZEKCLI_PARSE_FAIL -- Minimum write size to be cached must be less than the maximum write size to be cached (esc)
  [52]
  $ hostcli -zek modify cache -zek=0 -max_cache=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000001
  \r             \r*** ZEKCLI_PARSE_FAIL -- -max_cache modifier requires a numeric value 1 or greater (esc)
  [52]
  $ hostcli -zek modify cache -zek=0 -max_read=2147483648 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  [52]
  $ hostcli -zek modify cache -zek=0 -mirror=nosuchadapter -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  [255]
  $ hostcli -zek modify cache -zek=0 -mirror= -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  [52]

A LUN whose cache is being purged has no mode to keep: without -mode the
request carries mode 0, which leaves the purge running.

  $ hostcli -zek purge cache -zek=0 -accept_risk -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  $ hostcli -zek modify cache -zek=0 -max_read=8 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 | tail -n 2
  Successfully modified caching for LUN  -fc_target=5006-0160-39A0-1122 -lun_number=0
  
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep "Mode:"
          Mode: Purge_In_Progress (mirrored at adapter 2000001B32A10E00)
