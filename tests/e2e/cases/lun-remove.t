remove lun deletes a data LUN of the adapter, or takes away a SAN LUN that is
offline. It asks for no confirmation. One LUN must be named.

  $ hostcli -zek remove lun -zek=0 -fc_target=2100-001B-32A1-0C00
  \r             \r*** ZEKCLI_PARSE_FAIL --  LUN number is required for LUN:  " -fc_target=2100-001B-32A1-0C00" (esc)
  [52]
  $ hostcli -zek remove lun -zek=0 -lun_wwuln=X -lun_serial=Y
  \r             \r*** ZEKCLI_PARSE_FAIL -- Cannot use more than one of -lun_wwuln, -lun_serial, or -lun_any_wwuln (esc)
  [52]

An online SAN LUN is refused by the adapter. The code alone tells the
refusal: whatever the library wrote to explain it is not the command's text.

  $ hostcli -zek remove lun -zek=0 -lun_number=2 -fc_target=2100-0024-FF3C-5A10
  \r             \r*** Invalid argument (esc)
  [255]

The data LUN goes, and its result record carries the code with no data;
another process no longer sees it.

  $ hostcli -zek remove lun -zek=0 -lun_number=0 -fc_target=2100-001B-32A1-0C00 -result=gone.dat
  [ Device 0 on local host ]
  
  Successfully removed LUN  2100-001B-32A1-0C00 -lun_number=0
  
  $ wc -c < gone.dat
  40
  $ hostcli -zek list lun | grep -c 2100-001B-32A1-0C00
  0
  [1]

The offline SAN LUN goes too.

  $ hostcli -zek remove lun -zek=0 -lun_number=3 -fc_target=2100-0024-FF3C-5A10
  [ Device 0 on local host ]
  
  Successfully removed LUN  2100-0024-FF3C-5A10 -lun_number=3
  
  $ hostcli -zek list lun -zek=0 | grep -c 'lun_number=3 '
  0
  [1]
