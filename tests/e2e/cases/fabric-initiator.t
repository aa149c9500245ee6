list initiator names each initiator that the adapter sees by its keyword,
-fc_initiator or -is_initiator; the result holds their identifiers, 288
bytes each behind a size of 292.

  $ hostcli -zek list initiator -zek=0 -result
  [ Device 0 on local host ]
  
  Initiator count = 3
  -fc_initiator=1000-0090-FA1B-2C3D
  -fc_initiator=2100-001B-32A1-0D00
  -is_initiator=iqn.1994-05.com.example:sanhost01
  
  
  
  $ od -A d -t d4 -j 32 -N 16 list_initiator.dat
  0000032           0         888           8           3
  0000048

show initiator shows one by name, its heading on a line of its own after
the names, with its 464-byte record in the result; or all of them, with
all their records.

  $ hostcli -zek show initiator -zek=0 -fc_initiator=2100-001B-32A1-0D00 -result
  [ Device 0 on local host ]
  
  
  -fc_initiator=2100-001B-32A1-0D00
      -wwpn=2100-001B-32A1-0D00 -wwnn=2000-001B-32A1-0D00
  FC Initiator
      (FCP) Fibre Channel Initiator 2000-001B-32A1-0D00, 2100-001B-32A1-0D00
      Port ID = 01-06-00
      Operational State = Logged In, Target, DM
  
  $ od -A d -t d4 -j 32 -N 20 show_initiator.dat
  0000032           0         480           8           1
  0000048         468
  0000052
  $ hostcli -zek show initiator -zek=0 -is_initiator=iqn.1994-05.com.example:sanhost01
  [ Device 0 on local host ]
  
  
  -is_initiator=iqn.1994-05.com.example:sanhost01
      -iscsi_name=iqn.1994-05.com.example:sanhost01
  iSCSI Initiator
      iSCSI Target
      iSCSI Name = iqn.1994-05.com.example:sanhost01
      CHAP is Disabled
      CHAP Secret = 
      Operational State = Logged Out
  
  $ rm show_initiator.dat
  $ hostcli -zek show initiator -zek=0 -result
  [ Device 0 on local host ]
  
  
  -fc_initiator=1000-0090-FA1B-2C3D
      -wwpn=1000-0090-FA1B-2C3D -wwnn=2000-0090-FA1B-2C3D
  FC Initiator
      (FCP) Fibre Channel Initiator 2000-0090-FA1B-2C3D, 1000-0090-FA1B-2C3D
      Port ID = 01-01-00
      Operational State = Logged In
  
  
  
  -fc_initiator=2100-001B-32A1-0D00
      -wwpn=2100-001B-32A1-0D00 -wwnn=2000-001B-32A1-0D00
  FC Initiator
      (FCP) Fibre Channel Initiator 2000-001B-32A1-0D00, 2100-001B-32A1-0D00
      Port ID = 01-06-00
      Operational State = Logged In, Target, DM
  
  
  
  -is_initiator=iqn.1994-05.com.example:sanhost01
      -iscsi_name=iqn.1994-05.com.example:sanhost01
  iSCSI Initiator
      iSCSI Target
      iSCSI Name = iqn.1994-05.com.example:sanhost01
      CHAP is Disabled
      CHAP Secret = 
      Operational State = Logged Out
  
  
  
  $ od -A d -t d4 -j 32 -N 16 show_initiator.dat
  0000032           0        1416           8           3
  0000048

  $ hostcli -zek show initiator -zek=0 -fc_initiator=1000-0090-FA1B-2CFF
  \r             \r*** Object not found -- Initiator "1000-0090-FA1B-2CFF" not found (esc)
  [255]
  $ hostcli -zek show initiator -zek=0 -is_initiator=iqn.nobody -fc_initiator=1000-0090-FA1B-2C3D
  \r             \r*** ZEKCLI_PARSE_FAIL -- Only one of -is_initiator or -fc_initiator can be used (esc)
  [52]
  $ hostcli -zek show initiator -zek=0 -fc_initiator=xyz
  \r             \r*** ZEKCLI_PARSE_FAIL -- Please specify -is_initiator or -fc_initiator (esc)
  [52]

A partial gathering: the notice and no list for list initiator, the notice
and every initiator for show initiator; status 2 in both results.

  $ hbasim partial zek-prod-a getTargetsAndInitiators 1006 --always
  $ rm list_initiator.dat show_initiator.dat
  $ hostcli -zek list initiator -zek=0 -result
  [ Device 0 on local host ]
  
  getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned The adapter does not respond (it is offline or restarting)
  
  
  
  $ hostcli -zek show initiator -zek=0 -result | head -5
  [ Device 0 on local host ]
  
  getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned The adapter does not respond (it is offline or restarting)
  
  -fc_initiator=1000-0090-FA1B-2C3D
  $ od -A d -t d4 -j 32 -N 16 list_initiator.dat
  0000032           2         888           8           3
  0000048
  $ od -A d -t d4 -j 32 -N 16 show_initiator.dat
  0000032           2        1416           8           3
  0000048
