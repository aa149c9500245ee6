list target names each target that the adapter sees, with the keyword that
selects it; the adapter's own internal target is not listed, but the result
record holds every target: a header of 8 and the count, then per target a
size of 292 and its 288-byte identifier.

  $ hostcli -zek list target -zek=0 -result
  [ Device 0 on local host ]
  
  Target count = 4
  -fc_target=5006-0160-39A0-1122
  -fc_target=5006-0168-39A0-1122
  -fc_target=2100-0024-FF3C-5A10
  -is_target=iqn.2004-04.com.simstor:vault.tgt01
  
  
  
  $ od -A d -t d4 -j 32 -N 16 list_target.dat
  0000032           0        1472           8           5
  0000048
  $ od -A d -t d4 -j 340 -N 4 list_target.dat
  0000340         292
  0000344
  $ stat -c %s list_target.dat
  1512

An adapter whose only target is its own counts none.

  $ hbasim reset $TESTDIR/scenarios/fabric-both.json >/dev/null
  $ hostcli -zek list target -zek=1
  [ Device 1 on local host ]
  
  Target count = 0
  
  
  
  $ hbasim reset >/dev/null

A gathering that only partly succeeds shows its notice and no list, as the
list may be incomplete; the command succeeds, the result record carries
status 2 and still every target.

  $ hbasim partial zek-prod-a getTargetsAndInitiators 1006
  $ rm list_target.dat
  $ hostcli -zek list target -zek=0 -result
  [ Device 0 on local host ]
  
  getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned The adapter does not respond (it is offline or restarting)
  
  
  
  $ od -A d -t d4 -j 32 -N 16 list_target.dat
  0000032           2        1472           8           5
  0000048
  $ hbasim fault zek-prod-a getTargetsAndInitiators 1006
  $ hostcli -zek list target -zek=0
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]

show target shows one target by name, with its record in the result, or
every target, with a result that counts none.

  $ hostcli -zek show target -zek=0 -fc_target=5006-0160-39A0-1122 -result
  [ Device 0 on local host ]
  
  -fc_target=5006-0160-39A0-1122
  FC Target 
      WWNN:    5006-0160-89A0-1122
      WWPN:    5006-0160-39A0-1122
      Port ID: 01-02-00
      Target State = online, mapped, FC1
      Target Portal Mode = FCP
  
  $ od -A d -t d4 -j 32 -N 20 show_target.dat
  0000032           0         304           8           1
  0000048         292
  0000052
  $ hostcli -zek show target -zek=0 -is_target=iqn.2004-04.com.simstor:vault.tgt01
  [ Device 0 on local host ]
  
  -is_target=iqn.2004-04.com.simstor:vault.tgt01
  iSCSI Target 
      iSCSI Name = iqn.2004-04.com.simstor:vault.tgt01
      CHAP is Enabled
      Target State = online, mapped, ETH1
      Target Portal Mode = ISCSI_OVER_FCOE
  
  $ rm show_target.dat
  $ hostcli -zek show target -zek=1 -result
  [ Device 1 on local host ]
  
  -fc_target=5006-0160-39A0-1122
  FC Target 
      WWNN:    5006-0160-89A0-1122
      WWPN:    5006-0160-39A0-1122
      Port ID: 01-02-00
      Target State = online, mapped, FC1
      Target Portal Mode = FCP
  
  
  -fc_target=5006-0168-39A0-1122
  FC Target 
      WWNN:    5006-0160-89A0-1122
      WWPN:    5006-0168-39A0-1122
      Port ID: 02-02-00
      Target State = online, mapped, FC2
      Target Portal Mode = FCP
  
  
  -fc_target=2100-0024-FF3C-5A10
  FC Target 
      WWNN:    2000-0024-FF3C-5A10
      WWPN:    2100-0024-FF3C-5A10
      Port ID: 01-03-00
      Target State = online, mapped, FC1/FC2
      Target Portal Mode = FCP
  
  
  -is_target=iqn.2004-04.com.simstor:vault.tgt01
  iSCSI Target 
      iSCSI Name = iqn.2004-04.com.simstor:vault.tgt01
      CHAP is Enabled
      Target State = online, mapped, ETH1
      Target Portal Mode = ISCSI_OVER_FCOE
  
  
  
  $ od -A d -t d4 -j 32 -N 16 show_target.dat
  0000032           0          12           8           0
  0000048

  $ hostcli -zek show target -zek=0 -fc_target=5006-0160-39A0-11FF
  \r             \r*** Object not found -- Target "5006-0160-39A0-11FF" not found (esc)
  [255]
  $ hostcli -zek show target -zek=0 -fc_target=xyz
  \r             \r*** ZEKCLI_PARSE_FAIL -- xyz" is not valid text for an FC target (esc)
  [52]
  $ hostcli -zek show target -zek=0 -fc_target=5006-0160-39A0-1122 -is_target=iqn.x
  \r             \r*** ZEKCLI_PARSE_FAIL -- Only one of -is_target or -fc_target can be used (esc)
  [52]

A partial gathering is told ahead of all targets, which are still shown.

  $ hbasim partial zek-prod-b getTargetsAndInitiators 1206
  $ hostcli -zek show target -zek=1 | head -5
  [ Device 1 on local host ]
  
  getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned Object not found
  -fc_target=5006-0160-39A0-1122
  FC Target 

set target sets a target's limit of outstanding I/O, 32 to 2048; show
target then shows it, in this process and the next.

  $ hostcli -zek set target -zek=0 -fc_target=5006-0160-39A0-1122 -max_outstanding_io=32 -result
  [ Device 0 on local host ]
  
  
  	-max_outstanding_io=32 for -fc_target=5006-0160-39A0-1122 set successfully.
  $ od -A d -t d4 -j 32 -N 8 set_target.dat
  0000032           0           0
  0000040
  $ hostcli -zek set target -zek=0 -fc_target=5006-0160-39A0-1122 -max_outstanding_io=2048
  [ Device 0 on local host ]
  
  
  	-max_outstanding_io=2048 for -fc_target=5006-0160-39A0-1122 set successfully.
  $ hostcli -zek show target -zek=0 -fc_target=5006-0160-39A0-1122 | grep Max
      Max Outstanding IO = 2048
  $ hostcli -zek set target -zek=0 -is_target=iqn.2004-04.com.simstor:vault.tgt01 -max_outstanding_io=100
  [ Device 0 on local host ]
  
  
  	-max_outstanding_io=100 for -fc_target=iqn.2004-04.com.simstor:vault.tgt01 set successfully.
  $ hostcli -zek show target -zek=0 -is_target=iqn.2004-04.com.simstor:vault.tgt01 | grep Max
      Max Outstanding IO = 100

The count is checked, and a target is required; without the count the
command line is stopped before the command runs.

  $ hostcli -zek set target -zek=0 -fc_target=5006-0160-39A0-1122 -max_outstanding_io=31
  \r             \r*** ZEKCLI_PARSE_FAIL -- -max_outstanding_io modifier requires a number in the range 32 to 2048 (esc)
  [52]
  $ hostcli -zek set target -zek=0 -fc_target=5006-0160-39A0-1122 -max_outstanding_io=2049
  \r             \r*** ZEKCLI_PARSE_FAIL -- -max_outstanding_io modifier requires a number in the range 32 to 2048 (esc)
  [52]
  $ hostcli -zek set target -zek=0 -max_outstanding_io=64
  \r             \r*** ZEKCLI_PARSE_FAIL -- This command requires a target - please use -fc_target=.. (esc)
  [52]
  $ hostcli -zek set target -zek=0 -fc_target=5006-0160-39A0-1122 >out.txt
  $ head -1 out.txt
  Error:  -max_outstanding_io modifier must be specified
  $ hostcli -zek show target -zek=0 -fc_target=5006-0160-39A0-1122 | grep Max
      Max Outstanding IO = 2048

A target that the adapter does not see is reported as set, and nothing is
sent to the adapter.

  $ hostcli -zek set target -zek=0 -fc_target=5006-0160-39A0-11FF -max_outstanding_io=64
  [ Device 0 on local host ]
  
  
  	-max_outstanding_io=64 for -fc_target=5006-0160-39A0-11FF set successfully.
  $ hbasim export | grep -c maxOutstandingIo
  2

An adapter that does not answer gives its code.

  $ hostcli -zek list target -zek=2000001B32A10F00
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hostcli -zek set target -zek=2000001B32A10F00 -fc_target=5006-0160-39A0-1122 -max_outstanding_io=64
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
