set fc writes the link rate, the connection option and the execution
throttle of one port. Settings that are not given keep their present values;
the result record shows the port read back after the change: from 20 bytes
into its image the port index, status, link, mode, current and programmed
rates (4gb is 2), frame size, SFP, throttle, connection and option.

  $ hostcli -zek set fc -zek=0 -port=1 -fc_link_rate=4gb -result
  [ Device 0 on local host ]
  
  FC Port 1 basic info successfully configured
  $ od -A d -t d4 -j 32 -N 8 set_fc.dat
  0000032           0         180
  0000040
  $ od -A d -t d4 -j 60 -N 44 set_fc.dat
  0000060           0           1           1           0
  0000076           2           2        2048           3
  0000092          64           1           2
  0000104
  $ hostcli -zek show fc -zek=0 -port=1 | grep -E 'Link Rate|Throttle|Connection'
      Current Link Rate = 4Gb
      Programmed Link Rate = 4Gb
      Execution Throttle = 64
      Connection Mode = Point-to-Point
      Programmed Connection Option = Auto

Each setting alone; the rates are matched by their beginnings in any case.

  $ hostcli -zek set fc -zek=0 -port=1 -exec_throttle=16 >/dev/null
  $ hostcli -zek show fc -zek=0 -port=1 | grep Throttle
      Execution Throttle = 16
  $ hostcli -zek set fc -zek=0 -port=1 -exec_throttle=65535 >/dev/null
  $ hostcli -zek show fc -zek=0 -port=1 | grep Throttle
      Execution Throttle = 65535
  $ hostcli -zek set fc -zek=0 -port=1 -loop_only >/dev/null
  $ hostcli -zek show fc -zek=0 -port=1 | grep Connection
      Connection Mode = Loop
      Programmed Connection Option = Loop Only
  $ hostcli -zek set fc -zek=0 -port=1 -p2p_only >/dev/null
  $ hostcli -zek show fc -zek=0 -port=1 | grep Connection
      Connection Mode = Point-to-Point
      Programmed Connection Option = Point-to-Point Only
  $ hostcli -zek set fc -zek=0 -port=1 -auto -fc_link_rate=AUTO >/dev/null
  $ hostcli -zek show fc -zek=0 -port=1 | grep -E 'Programmed'
      Programmed Link Rate = Auto
      Programmed Connection Option = Auto
  $ hostcli -zek set fc -zek=0 -port=1 -fc_link_rate=2 >/dev/null
  $ hostcli -zek show fc -zek=0 -port=1 | grep -E 'Programmed Link'
      Programmed Link Rate = 2Gb

With no setting the port's values are written back as they are.

  $ hostcli -zek set fc -zek=0 -port=2
  [ Device 0 on local host ]
  
  FC Port 2 basic info successfully configured
  $ hostcli -zek show fc -zek=0 -port=2 | grep -E 'Programmed|Throttle'
      Programmed Link Rate = Auto
      Execution Throttle = 64
      Programmed Connection Option = Auto

Only one of -loop_only, -p2p_only and -auto: more is refused with no words
of the command's own, and nothing changes.

  $ hostcli -zek set fc -zek=0 -port=2 -auto -loop_only
  \r             \r*** ZEKCLI_PARSE_FAIL (esc)
  [52]
  $ hostcli -zek set fc -zek=0 -port=2 -p2p_only -loop_only -exec_throttle=32
  \r             \r*** ZEKCLI_PARSE_FAIL (esc)
  [52]
  $ hostcli -zek show fc -zek=0 -port=2 | grep -E 'Option|Throttle'
      Execution Throttle = 64
      Programmed Connection Option = Auto

Bad values are refused with their texts and change nothing.

  $ hostcli -zek set fc -zek=0 -port=2 -fc_link_rate=1
  \r             \r*** ZEKCLI_PARSE_FAIL -- Ambiguous selection, please choose "10gb" or "16gb" (esc)
  [52]
  $ hostcli -zek set fc -zek=0 -port=2 -fc_link_rate=32gb
  \r             \r*** ZEKCLI_PARSE_FAIL -- "32gb" is not recognized (esc)
  
  [52]
  $ hostcli -zek set fc -zek=0 -port=2 -exec_throttle=15
  \r             \r*** ZEKCLI_PARSE_FAIL -- Execution Throttle must be in range 16 to 65535 (esc)
  [52]
  $ hostcli -zek set fc -zek=0 -port=2 -exec_throttle=65536
  \r             \r*** ZEKCLI_PARSE_FAIL -- Execution Throttle must be in range 16 to 65535 (esc)
  [52]
  $ hostcli -zek set fc -zek=0 -port=2 -exec_throttle=16abc
  \r             \r*** ZEKCLI_PARSE_FAIL -- Execution Throttle must be in range 16 to 65535 (esc)
  [52]
  $ hostcli -zek set fc -zek=0 -port=2 -exec_throttle= >out.txt
  [52]
  $ head -3 out.txt
  *** ZEKCLI_PARSE_FAIL
      
      exec_throttle modifier requires a value
  $ hostcli -zek set fc -zek=0 -port=3 -auto
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 2 (esc)
  [52]
  $ hostcli -zek set fc -zek=0 -auto >out.txt
  $ head -2 out.txt
  Error:  -port modifier must be specified
    Command syntax:
  $ hostcli -zek show fc -zek=0 -port=2 | grep -E 'Programmed|Throttle'
      Programmed Link Rate = Auto
      Execution Throttle = 64
      Programmed Connection Option = Auto

A fixed rate that the port's SFP cannot carry (16gb on an 8Gb SFP) is the
library's refusal, with its own code, and nothing changes.

  $ hostcli -zek set fc -zek=0 -port=2 -fc_link_rate=16gb -exec_throttle=32
  \r             \r*** The SFP of the FC port cannot run at the requested link rate (esc)
  [255]
  $ hostcli -zek show fc -zek=0 -port=2 | grep -E 'SFP|Programmed Link|Throttle'
      Programmed Link Rate = Auto
      SFP Type = 8Gb
      Execution Throttle = 64

An adapter that stops answering gives its code, and nothing changes.

  $ hbasim fault zek-prod-a getFcInfo 1006 --always
  $ hostcli -zek set fc -zek=0 -port=1 -exec_throttle=99
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hbasim clear-faults
  $ hostcli -zek show fc -zek=0 -port=1 | grep Throttle
      Execution Throttle = 65535
