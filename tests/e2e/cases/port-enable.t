disable fc_port and enable fc_port switch one port. A disabled port shows
its link down, and the targets seen only through it are out of sight until
it is enabled again. The state lasts from one command to the next, and
through an export of the simulated SAN.

  $ hostcli -zek disable fc_port -zek=0 -port=1 -result
  [ Device 0 on local host ]
  
  FC Port 1 successfully disabled
  $ od -A d -t d4 -j 32 -N 8 disable_fc_port.dat
  0000032           0           0
  0000040
  $ hostcli -zek show fc -zek=0 -port=1 | grep -E 'Status|Current'
      Port Status = PORT_DISABLED
      Link Status = LINK_DOWN
      Current Link Rate = Auto
  $ hostcli -zek list target -zek=0
  [ Device 0 on local host ]
  
  Target count = 2
  -fc_target=5006-0168-39A0-1122
  -fc_target=2100-0024-FF3C-5A10
  
  
  
  $ hostcli -zek show target -zek=0 -fc_target=2100-0024-FF3C-5A10 | grep State
      Target State = online, mapped, FC2
  $ hbasim show | grep -A1 zek-prod-a | grep ports
        ports: FC1 disabled, FC2 up; drives: 4 (3 in pool); cache pool 800 GiB; log 36 records
  $ hbasim export san.json
  $ grep -c '"enabled": false' san.json
  1
  $ hbasim reset san.json >/dev/null
  $ hostcli -zek show fc -zek=0 -port=1 | grep Status
      Port Status = PORT_DISABLED
      Link Status = LINK_DOWN

  $ hostcli -zek enable fc_port -zek=0 -port=1
  [ Device 0 on local host ]
  
  FC Port 1 successfully enabled
  $ hostcli -zek show fc -zek=0 -port=1 | grep -E 'Status'
      Port Status = PORT_ENABLED
      Link Status = LINK_UP
  $ hostcli -zek list target -zek=0 | grep -c fc_target
  3

A port that carries an FCIP link cannot be disabled; both commands give the
same text for that code.

  $ hostcli -zek disable fc_port -zek=0 -port=2
  \r             \r*** The FC port cannot be disabled because an FCIP link is configured on it -- Port cannot be disabled because FCIP Link is currently configured (esc)
  [255]
  $ hostcli -zek show fc -zek=0 -port=2 | grep 'Port Status'
      Port Status = PORT_ENABLED
  $ hbasim fault zek-prod-a setFcPortEnabled 1015
  $ hostcli -zek enable fc_port -zek=0 -port=2
  \r             \r*** The FC port cannot be disabled because an FCIP link is configured on it -- Port cannot be disabled because FCIP Link is currently configured (esc)
  [255]

The port is required and checked against the adapter's ports; other
refusals of the library are its own.

  $ hostcli -zek enable fc_port -zek=0 | head -2
  Error:  -port modifier must be specified
    Command syntax:
  $ hostcli -zek disable fc_port -zek=1 -port=3
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 2 (esc)
  [52]
  $ hbasim fault zek-prod-b setFcPortEnabled 1006
  $ hostcli -zek disable fc_port -zek=1 -port=1
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hostcli -zek show fc -zek=1 -port=1 | grep 'Port Status'
      Port Status = PORT_ENABLED
