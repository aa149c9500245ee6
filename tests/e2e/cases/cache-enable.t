Putting a SAN LUN into the cache of the adapter named by -zek: modes and
profiles by any unambiguous beginning, capability tests before anything is
sent, size windows in KB that travel as 512-byte blocks, and the refusal of
a LUN that is cached already.

An adapter that can only cache write-through refuses write-back before the
request is sent: the fault armed on enableCache is still there afterwards.

  $ hbasim reset $TESTDIR/scenarios/cache-write-through-only.json >/dev/null
  $ hbasim fault zek-wt enableCache 1000 >/dev/null
  $ hostcli -zek enable cache -zek=0 -mode=read_write_back -fc_target=21000024FF3C7700 -lun_number=1
  \r             \r*** The feature is not supported by this adapter -- -mode=read_write_back is not supported by the specified adapter (esc)
  [255]
  $ hbasim faults
  Faults:
    2000001B32C10000 enableCache -> 1000, once
  $ hbasim clear-faults >/dev/null

A minimum equal to the maximum passes; a larger one does not, and nothing
is cached by the refused line.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_th -min_read=5 -max_read=4 -fc_target=21000024FF3C7700 -lun_number=2
  \r             \r*** ZEKCLI_PARSE_FAIL -- Minimum read size to be cached must be less than the maximum read size to be cached (esc)
  [52]
  $ hostcli -zek enable cache -zek=0 -mode=read_write_th -min_write=9 -max_write=8 -fc_target=21000024FF3C7700 -lun_number=2
  \r             \r*** ZEKCLI_PARSE_FAIL -- Minimum write size to be cached must be less than the maximum write size to be cached (esc)
  [52]
  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C7700 -lun_number=2 | grep -c "Cache Info"
  0
  [1]
  $ hostcli -zek enable cache -zek=0 -mode=read_write_th -min_read=4 -max_read=4 -fc_target=21000024FF3C7700 -lun_number=2
  [ Device 0 on local host ]
  
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-7700 -lun_number=2
  
  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C7700 -lun_number=2 | grep "will be cached"
          Reads with size  4 KB to 4 KB will be cached
          Writes with size 0 KB to 1024 KB will be cached

A size of 0 KB goes out as one block, which shows as 0 KB; sizes not given
are the firmware defaults of the LUN.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -max_read=0 -fc_target=21000024FF3C7700 -lun_number=1 | tail -n 2
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-7700 -lun_number=1
  
  $ hbasim export | grep -o '"maxRead": [0-9]*'
  "maxRead": 1
  "maxRead": 8
  $ hostcli -zek show lun -zek=0 -fc_target=21000024FF3C7700 -lun_number=1 | grep -E "Mode:|will be cached"
          Mode: Read_Write_Through
          Reads with size  0 KB to 0 KB will be cached
          Writes with size 0 KB to 1024 KB will be cached

A LUN cached already is for "modify cache".

  $ hostcli -zek enable cache -zek=0 -mode=read_only -fc_target=21000024FF3C7700 -lun_number=1
  \r             \r*** The LUN is already cached -- This command is for use on LUNs that are not currently cached.  Please use the 'modify cache' command instead. (esc)
  [255]

On the default SAN. "none", and any beginning that only "none" has, asks for
a real mode; a beginning shared by several modes or profiles is ambiguous.

  $ hbasim reset >/dev/null
  $ hostcli -zek enable cache -zek=0 -mode=none -lun_wwuln=600A0B80002A1C3D0000000052B2A002
  \r             \r*** ZEKCLI_PARSE_FAIL -- Please select -mode=read_write_back, -mode=read_write_through, -mode=read_only, -mode=write_through_only, or -mode=write_back_only (esc)
  [52]
  $ hostcli -zek enable cache -zek=0 -mode=n -lun_wwuln=600A0B80002A1C3D0000000052B2A002
  \r             \r*** ZEKCLI_PARSE_FAIL -- Please select -mode=read_write_back, -mode=read_write_through, -mode=read_only, -mode=write_through_only, or -mode=write_back_only (esc)
  [52]
  $ hostcli -zek enable cache -zek=0 -mode=read -lun_wwuln=600A0B80002A1C3D0000000052B2A002
  \r             \r*** ZEKCLI_PARSE_FAIL -- Ambiguous selection, please choose "read_write_through" "read_write_back" or "read_only" (esc)
  [52]
  $ hostcli -zek enable cache -zek=0 -mode=read_write_back -profile=e -lun_wwuln=600A0B80002A1C3D0000000052B2A002
  \r             \r*** ZEKCLI_PARSE_FAIL -- Ambiguous selection, please choose "erp" or "exchange" (esc)
  [52]

A cache limit must be 1 or more when given; not given, no limit is sent.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_back -max_cache=0 -lun_wwuln=600A0B80002A1C3D0000000052B2A002
  \r             \r*** ZEKCLI_PARSE_FAIL -- -max_cache modifier requires a numeric value 1 or greater (esc)
  [52]
  $ hostcli -zek enable cache -zek=0 -mode=wri -max_cache=3 -lun_wwuln=600A0B80002A1C3D0000000052B2A002
  \r             \r*** ZEKCLI_PARSE_FAIL -- Ambiguous selection, please choose "write_through_only" or "write_back_only" (esc)
  [52]

A multi-path LUN named by its WWULN is cached through its first path, with
the profile and mirror given.

  $ hostcli -zek enable cache -zek=0 -mode=write_back_o -profile=ware -mirror=zek-dr-site -lun_wwuln=60060160A1B2C3D4E5F6000000000002
  [ Device 0 on local host ]
  
  Successfully enabled caching for LUN  -fc_target=5006-0160-39A0-1122 -lun_number=1
  
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=1 -vpgindex=1 | grep -E "Mode:|Profile"
          Mode: Write_Back_Only (mirrored at adapter 2000001B32A10E00)
          Profile Type: Warehousing

The peer's cache is not this adapter's to enable.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_back -fc_target=21000024FF3C5A10 -lun_number=1 >/dev/null
  [185]
