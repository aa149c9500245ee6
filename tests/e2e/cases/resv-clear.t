clear reservation clears the persistent reservation of one LUN. It needs a
LUN number.

  $ hostcli -zek clear reservation -zek=0
  \r             \r*** ZEKCLI_PARSE_FAIL --  LUN number is required for LUN:  "" (esc)
  [52]

Cleared, it writes no result record at all; another process then finds no
reservation on that path.

  $ hostcli -zek clear reservation -zek=0 -lun_number=0 -fc_target=5006-0160-39A0-1122 -vpgindex=1 -result=c.dat
  [ Device 0 on local host ]
  
  Reservation has been cleared successfully.
  $ ls c.dat 2>&1
  ls: cannot access 'c.dat': No such file or directory
  [2]
  $ hostcli -zek show reservation -zek=0 -lun_number=0 -fc_target=5006-0160-39A0-1122 -vpgindex=1
  [ Device 0 on local host ]
  
  -lun_number=0 -fc_target=5006-0160-39A0-1122
      Type:   No reservation held
  

A LUN the adapter cannot reach is refused with the adapter's code.

  $ hostcli -zek clear reservation -zek=0 -lun_number=3 -fc_target=2100-0024-FF3C-5A10 -vpgindex=1
  \r             \r*** The LUN is no longer available (it is offline or gone) (esc)
  [116]
