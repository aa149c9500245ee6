list device names every device that the adapter sees, targets and
initiators alike, by -fc_device or -is_device; its own internal device is
not listed but is in the result.

  $ hostcli -zek list device -zek=0 -result
  [ Device 0 on local host ]
  
  Device count = 7
  -fc_device=5006-0160-39A0-1122
  -fc_device=5006-0168-39A0-1122
  -fc_device=2100-0024-FF3C-5A10
  -is_device=iqn.2004-04.com.simstor:vault.tgt01
  -fc_device=1000-0090-FA1B-2C3D
  -fc_device=2100-001B-32A1-0D00
  -is_device=iqn.1994-05.com.example:sanhost01
  
  
  
  $ od -A d -t d4 -j 32 -N 16 list_device.dat
  0000032           0        2348           8           8
  0000048

show device shows one device with its 848-byte record in the result, or
all of them with every record, the internal one too.

  $ hostcli -zek show device -zek=0 -fc_device=2100-0024-FF3C-5A10 -result
  [ Device 0 on local host ]
  
  -fc_device=2100-0024-FF3C-5A10
  FC Target 
      WWNN:    2000-0024-FF3C-5A10
      WWPN:    2100-0024-FF3C-5A10
      Port ID: 01-03-00
      Target State = online, mapped, FC1/FC2
      Target Portal Mode = FCP
  
  $ od -A d -t d4 -j 32 -N 20 show_device.dat
  0000032           0         864           8           1
  0000048         852
  0000052
  $ hostcli -zek show device -zek=0 -fc_device=1000-0090-FA1B-2C3D
  [ Device 0 on local host ]
  
  -fc_device=1000-0090-FA1B-2C3D
  FC Initiator
      (FCP) Fibre Channel Initiator 2000-0090-FA1B-2C3D, 1000-0090-FA1B-2C3D
      Port ID = 01-01-00
      Operational State = Logged In
  
  $ rm show_device.dat
  $ hostcli -zek show device -zek=0 -result | grep -c '^-'
  7
  $ od -A d -t d4 -j 32 -N 16 show_device.dat
  0000032           0        6828           8           8
  0000048

A port name that is both a target and an initiator is one device that
shows both parts.

  $ hbasim reset $TESTDIR/scenarios/fabric-both.json >/dev/null
  $ hostcli -zek list device -zek=0
  [ Device 0 on local host ]
  
  Device count = 3
  -fc_device=5006-0160-AAAA-0001
  -fc_device=2100-001B-32F1-B000
  -fc_device=1000-0090-FA00-F001
  
  
  
  $ hostcli -zek show device -zek=0 -fc_device=2100-001B-32F1-B000
  [ Device 0 on local host ]
  
  -fc_device=2100-001B-32F1-B000
  FC Target 
      WWNN:    2000-001B-32F1-B000
      WWPN:    2100-001B-32F1-B000
      Port ID: 01-01-10
      Target State = online, mapped, FC2
      Target Portal Mode = FCP
  FC Initiator
      (FCP) Fibre Channel Initiator 2000-001B-32F1-B000, 2100-001B-32F1-B000
      Port ID = 01-01-10
      Operational State = Logged In, Target
  
  $ rm list_device.dat
  $ hostcli -zek list device -zek=1 -result
  [ Device 1 on local host ]
  
  Device count = 0
  
  
  
  $ od -A d -t d4 -j 32 -N 16 list_device.dat
  0000032           0         304           8           1
  0000048

What a device shows is gathered anew on every command: a port that goes
down takes its target part out of sight, and the initiator part stays.

  $ hostcli -zek disable fc_port -zek=0 -port=2 >/dev/null
  $ hostcli -zek show device -zek=0 -fc_device=2100-001B-32F1-B000
  [ Device 0 on local host ]
  
  -fc_device=2100-001B-32F1-B000
  FC Initiator
      (FCP) Fibre Channel Initiator 2000-001B-32F1-B000, 2100-001B-32F1-B000
      Port ID = 01-01-10
      Operational State = Logged In, Target
  
  $ hostcli -zek show device -zek=0 | grep -c '^-fc_device'
  3

Refusals: a device the adapter does not see, both keywords, a name that
cannot be read, and an adapter that stops answering.

  $ hostcli -zek show device -zek=0 -fc_device=5006-0160-39A0-11FF
  \r             \r*** Object not found -- Device "5006-0160-39A0-11FF" not found (esc)
  [255]
  $ hostcli -zek show device -zek=0 -fc_device=2100-001B-32F1-B000 -is_device=iqn.x
  \r             \r*** ZEKCLI_PARSE_FAIL -- Only one of -is_device or -fc_device can be used (esc)
  [52]
  $ hostcli -zek show device -zek=0 -fc_device=xyz
  \r             \r*** ZEKCLI_PARSE_FAIL -- Please specify -is_device or -fc_device (esc)
  [52]
  $ hbasim fault zek-fabric getTargetsAndInitiators 1006
  $ hostcli -zek list device -zek=0
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
