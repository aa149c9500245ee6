show sfp shows the SFP of every port of the adapter in port order, or of the
one -port names. The result record holds the SFP read last: 576 bytes behind
a size field of 580.

  $ hbasim reset $TESTDIR/scenarios/status-ports.json >/dev/null
  $ hostcli -zek show sfp -zek=1 -result | grep -E '^\[|SFP Port|Vendor Name|Serial Number'
  [ Device 1 on local host ]
      SFP Port = 1
      Vendor Name = THREEOPT
      Serial Number = SF3P0
      SFP Port = 2
      Vendor Name = THREEOPT
      Serial Number = SF3P1
      SFP Port = 3
      Vendor Name = THREEOPT
      Serial Number = SF3P2
  $ od -A d -t d4 -j 32 -N 8 show_sfp.dat
  0000032           0         580
  0000040
  $ tail -c +41 show_sfp.dat | head -c 576 | strings | grep -E '^SF3P'
  SF3P2

One port alone, in full:

  $ hostcli -zek show sfp -zek=0 -port=1
  [ Device 0 on local host ]
  
      SFP Port = 1
      Vendor Name = ONEOPTIC
      Serial Number = SFONE0
      Driver Status = No error
  
      SFP General Status
  	 		Temperature(C)	Voltage(V)	Tx Bia(mA)	Tx Power(mW)	Rx Power(mW)
      Value		38.500000	3.300000	4.800000	0.550000	0.480000
      Status   		Normal		Normal		Normal		Normal		Normal
      High Alarm   	85.000000	3.780000	6.300000	1.050000	1.050000
      High Warning 	75.000000	3.600000	6.000000	1.000000	1.000000
      Low  Warning 	0.000000	3.000000	2.000000	0.200000	0.050000
      Low  Alarm   	-5.000000	2.700000	1.800000	0.180000	0.045000
  

The range of -port is the adapter's own number of ports:

  $ hostcli -zek show sfp -zek=0 -port=2
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 1 (esc)
  [52]
  $ hostcli -zek show sfp -zek=1 -port=4
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 3 (esc)
  [52]
  $ hostcli -zek enable beacon -zek=1 -port=3
  [ Device 1 on local host ]
  
  Beacon of FC Port 3 has been enabled successfully.
  $ hostcli -zek enable beacon -zek=0 -port=2
  \r             \r*** ZEKCLI_PARSE_FAIL -- -port modifier requires a number in the range 1 to 1 (esc)
  [52]

A refusal of the library for one port ends the command:

  $ hbasim fault 2000001B32E1B000 getSfpInfo 1000 >/dev/null
  $ hostcli -zek show sfp -zek=1
  \r             \r*** General failure (esc)
  [255]
