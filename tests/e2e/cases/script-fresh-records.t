A line of a script sees what the lines before it changed: the LUN records the
process already holds are refreshed after a change, not shown as they were.

  $ printf '%s\n' 'show lun -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2 -quiet' \
  >   'enable cache -zek=0 -mode=read_write_through -fc_target=21000024FF3C5A10 -lun_number=2' \
  >   'show lun -zek=0 -lun_wwuln=600A0B80002A1C3D0000000052B2A002' \
  >   'disable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2' \
  >   'show lun -zek=0 -lun_wwuln=600A0B80002A1C3D0000000052B2A002' > fresh.cfg
  $ hostcli -zek execute script -file=fresh.cfg | grep -e 'LUN State' -e 'Mode:' -e 'not cached' -e 'Successfully'
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-5A10 -lun_number=2
      LUN State  = 0x200801 ( Online, Mapped, Cache Ready)
          Mode: Read_Write_Through
  Successfully disabled caching for LUN   -fc_target=2100-0024-FF3C-5A10 -lun_number=2
      LUN State  = 0x801 ( Online, Mapped)
      (LUN is not cached)
