show fc shows every Fibre Channel port of the adapter, a blank line after
each, or the one -port names. The result record holds the port read last:
the 176-byte image behind a size field of 180, with the port index (from 0)
20 bytes into it.

  $ hostcli -zek show fc -zek=0 -result
  [ Device 0 on local host ]
  
      Port = FC1
      Port Status = PORT_ENABLED
      Link Status = LINK_UP
      FibreChannel Mode = FCP
      Current Link Rate = 8Gb
      Programmed Link Rate = Auto
      WWNN = 2000-001B-32A1-0C00
      WWPN = 2100-001B-32A1-0C00
      Port ID = 01-00-C0
      Firmware Revision = 8.07.00
      Frame Size = 2048
      SFP Type = 8Gb
      Execution Throttle = 64
      Connection Mode = Point-to-Point
      Programmed Connection Option = Auto
  
      Port = FC2
      Port Status = PORT_ENABLED
      Link Status = LINK_UP
      FibreChannel Mode = FCP
      Current Link Rate = 8Gb
      Programmed Link Rate = Auto
      WWNN = 2000-001B-32A1-0C00
      WWPN = 2101-001B-32A1-0C00
      Port ID = 01-00-C1
      Firmware Revision = 8.07.00
      Frame Size = 2048
      SFP Type = 8Gb
      Execution Throttle = 64
      Connection Mode = Point-to-Point
      Programmed Connection Option = Auto
  
  
  $ od -A d -t d4 -j 32 -N 8 show_fc.dat
  0000032           0         180
  0000040
  $ od -A d -t d4 -j 60 -N 4 show_fc.dat
  0000060           1
  0000064
  $ hostcli -zek show fc -zek=1 -port=2
  [ Device 1 on local host ]
  
      Port = FC2
      Port Status = PORT_ENABLED
      Link Status = LINK_UP
      FibreChannel Mode = FCP
      Current Link Rate = 8Gb
      Programmed Link Rate = Auto
      WWNN = 2000-001B-32A1-0D00
      WWPN = 2101-001B-32A1-0D00
      Port ID = 01-00-D1
      Firmware Revision = 8.07.00
      Frame Size = 2048
      SFP Type = 8Gb
      Execution Throttle = 64
      Connection Mode = Point-to-Point
      Programmed Connection Option = Auto
  

The port number runs from 1 to the adapter's number of ports. The number
reader skips signs and other marks, so -1 reads as port 1.

  $ hostcli -zek show fc -zek=0 -port=0
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 2 (esc)
  [52]
  $ hostcli -zek show fc -zek=0 -port=3
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 2 (esc)
  [52]
  $ hostcli -zek show fc -zek=0 -port=abc
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 2 (esc)
  [52]
  $ hostcli -zek show fc -zek=0 -port=1.5
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier does not allow decimal point. (esc)
  [52]
  $ hostcli -zek show fc -zek=0 -port=-1 | grep 'Port ='
      Port = FC1

An adapter that is offline, or stops answering between its description and
its ports, ends the command with the library's code and nothing shown.

  $ hostcli -zek show fc -zek=2000001B32A10F00
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hbasim fault zek-prod-a getFcInfo 1006
  $ hostcli -zek show fc -zek=0 -result=gone.dat
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ ls gone.dat
  ls: cannot access 'gone.dat': No such file or directory
  [2]
