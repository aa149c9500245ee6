Menu mode: LUNs, targets, clusters, drives, initiators and devices are
chosen from what the adapter reports. "screen" shows what a session wrote
with the banner and key reminder of each menu left out; "from TEXT" shows
it from the first line holding TEXT.

  $ session() { printf "$1" | hostcli -zek > screen.txt; echo "exit $?"; }
  $ screen() { grep -v -e '^        HalvardConsole$' -e '^        Korvane CLI' -e '^        (m or 98' screen.txt | cat -s; }
  $ from() { screen | sed -n "/$1/,\$p"; }

"show lun" (Information 2, item 8) on the first adapter. First, how the LUN
is to be named; "All LUNs" is offered as the LUN keywords of "show lun" may
be left out. By target: the targets the adapter sees (its own internal
target left out), then that target's LUNs.

  $ session '0\n2\n8\n\n0\n2\n2\n1\nq\n'; from 'specifiy a LUN' | sed -n '1,/^zekcli/p'
  exit 58
          Please choose how you would like to specifiy a LUN: 
  
          show lun -zek=2000001B32A10C00
  
         [0:]  -fc_target=5006-0160-39A0-1122
          1:   -fc_target=5006-0168-39A0-1122
          2:   -fc_target=2100-0024-FF3C-5A10
          3:   -is_target=iqn.2004-04.com.simstor:vault.tgt01
  
          [Required] Choose Target: 
  
          show lun -zek=2000001B32A10C00 -fc_target=2100-0024-FF3C-5A10
  
         [0:]  LUN 1
          1:   LUN 2
          2:   LUN 3
          3:   LUN 8
          4:   All LUNs for target 2100-0024-FF3C-5A10
  
          Choose LUN: 
  zekcli show lun -zek=2000001B32A10C00 -fc_target=2100-0024-FF3C-5A10 -lun_number=2

By serial number, and by WWULN, each LUN once however many paths it has;
the adapter's drives, which it presents as LUNs of its internal target, are
among them.

  $ session '0\n2\n8\n\n0\n0\n3\nq\n'; grep -e 'lun_serial=' -e 'serial number: ' -e '^zekcli' screen.txt | head -n 11
  exit 58
         [0:]  -lun_serial="APM00123400001"
          1:   -lun_serial="APM00123400002"
          2:   -lun_serial="SV0B2A001"
          3:   -lun_serial="SV0B2A002"
          4:   -lun_serial="VLT07"
          5:   -lun_serial="S01B32A10C000"
          6:   -lun_serial="S01B32A10C001"
          7:   -lun_serial="S01B32A10C002"
          8:   -lun_serial="S01B32A10C003"
          Choose LUN by serial number: 
  zekcli show lun -zek=2000001B32A10C00 -lun_serial=SV0B2A002
  $ session '0\n2\n8\n\n0\n1\n7\nq\n'; grep '^zekcli' screen.txt
  exit 58
  zekcli show lun -zek=2000001B32A10C00 -lun_wwuln=vault.example:lun-archive-07

"All LUNs" leaves every LUN keyword out.

  $ session '0\n2\n8\n\n0\n3\nq\n'; grep '^zekcli' screen.txt; grep -c '^-lun_number=' screen.txt
  exit 58
  zekcli show lun -zek=2000001B32A10C00
  11

"show target" asks for a target only, with "All Targets". The command runs,
and the session goes on at the main menu.

  $ session '0\n2\n16\n\n0\n3\nq\n'; from 'show target -zek=2000001B32A10C00$' | sed -n '1,/^\*\*\*/p'
  exit 58
  show target -zek=2000001B32A10C00
  
          show target -zek=2000001B32A10C00
  
         [0:]  -fc_target=5006-0160-39A0-1122
          1:   -fc_target=5006-0168-39A0-1122
          2:   -fc_target=2100-0024-FF3C-5A10
          3:   -is_target=iqn.2004-04.com.simstor:vault.tgt01
          4:   All Targets
  
          Choose Target: 
  zekcli show target -zek=2000001B32A10C00 -is_target=iqn.2004-04.com.simstor:vault.tgt01
  
  [ Device 0 on local host ]
  
  -is_target=iqn.2004-04.com.simstor:vault.tgt01
  iSCSI Target 
      iSCSI Name = iqn.2004-04.com.simstor:vault.tgt01
      CHAP is Enabled
      Target State = online, mapped, ETH1
      Target Portal Mode = ISCSI_OVER_FCOE
  
          
  
         [0:]  Adapter Information
          1:   Adapter Configuration
          2:   Adapter Updates
          3:   Adapter Diagnostics
          4:   Help
          5:   Exit (or use "q")
  
          Please Enter Selection: \r             \r*** ZEKCLI_EXIT (esc)

A cluster is chosen from the clusters of the scan, the pseudo cluster of
the adapters outside clusters left out: "show cluster" may leave it out
("All Clusters"), "destroy cluster" may not; -clusterid is then also asked
for as a required keyword, with the choice as its value.

  $ session '0\n2\n2\n\n3\n\nq\n'; grep -B 5 -A 1 'Choose Cluster' screen.txt
  exit 58
  
         [0:]  -clusterid=prodcluster
          1:   All Clusters
  
          (m or 98: Main Menu; q or 99: Quit; h or ?  - Help)
          Choose Cluster: 
  zekcli show cluster  -clusterid=prodcluster
  $ session '1\n4\n\n\n\n\n5\n'; from '0:.  -clusterid' | sed -n '1,/successfully/p'
  exit 0
         [0:]  -clusterid=prodcluster
  
          [Required] Choose Cluster: 
  
  destroy cluster -zek=2000001B32A10C00 -clusterid=prodcluster
  
  [Required] Enter a new value or use <enter> to continue [-clusterid=prodcluster]: 
  zekcli destroy cluster -zek=2000001B32A10C00 -clusterid=prodcluster -clusterid=prodcluster
  
  cluster prodcluster successfully destroyed

"show drive" names a LUN and a drive. In the drive menu "h" shows the
command's help (and the one-character result of showing it), then the main
menu; "m" goes back to the main menu.

  $ session '0\n2\n4\n\n0\n3\nh\nq\n'; from '0:.  -drive=' | sed -n '1,/^Syntax/p'; grep -c "$(printf '\001')" screen.txt
  exit 58
         [0:]  -drive=5000-C532-A10C-0000
          1:   -drive=5000-C532-A10C-0001
          2:   -drive=5000-C532-A10C-0002
          3:   -drive=5000-C532-A10C-0003
          4:   All Drives
  
          Choose Drive: 
  Syntax: show drive
  1
  $ session '0\n2\n4\n\n0\n3\nm\nq\n'; grep -c 'Adapter Information' screen.txt
  exit 58
  2
  $ session '0\n2\n4\n\n0\n3\n1\n\nq\n'; grep -e '^zekcli' -e '^\*\*\*' screen.txt
  exit 58
  zekcli show drive -zek=2000001B32A10C00 -drive=5000-C532-A10C-0001

Initiators and devices have menus of their own ("show initiator", "show
device").

  $ session '0\n2\n7\n\n0\n1\nq\n'; from 'show initiator -zek' | sed -n '1,/^\*\*\*/p'
  exit 58
          show initiator -zek=2000001B32A10C00
  
         [0:]  -fc_initiator=1000-0090-FA1B-2C3D -wwpn=1000-0090-FA1B-2C3D -wwnn=2000-0090-FA1B-2C3D
          1:   -fc_initiator=2100-001B-32A1-0D00 -wwpn=2100-001B-32A1-0D00 -wwnn=2000-001B-32A1-0D00
          2:   -is_initiator=iqn.1994-05.com.example:sanhost01 -iscsi_name=iqn.1994-05.com.example:sanhost01
          3:   All Initiators
  
          Choose Initiator: 
  zekcli show initiator -zek=2000001B32A10C00 -fc_initiator=2100-001B-32A1-0D00
  
  [ Device 0 on local host ]
  
  -fc_initiator=2100-001B-32A1-0D00
      -wwpn=2100-001B-32A1-0D00 -wwnn=2000-001B-32A1-0D00
  FC Initiator
      (FCP) Fibre Channel Initiator 2000-001B-32A1-0D00, 2100-001B-32A1-0D00
      Port ID = 01-06-00
      Operational State = Logged In, Target, DM
  
          
  
         [0:]  Adapter Information
          1:   Adapter Configuration
          2:   Adapter Updates
          3:   Adapter Diagnostics
          4:   Help
          5:   Exit (or use "q")
  
          Please Enter Selection: \r             \r*** ZEKCLI_EXIT (esc)
  $ session '0\n2\n3\n\n0\n0\nq\n'; from 'show device -zek' | sed -n '1,/^\*\*\*/p'
  exit 58
          show device -zek=2000001B32A10C00
  
         [0:]  -fc_device=5006-0160-39A0-1122
          1:   -fc_device=5006-0168-39A0-1122
          2:   -fc_device=2100-0024-FF3C-5A10
          3:   -is_device=iqn.2004-04.com.simstor:vault.tgt01
          4:   -fc_device=1000-0090-FA1B-2C3D
          5:   -fc_device=2100-001B-32A1-0D00
          6:   -is_device=iqn.1994-05.com.example:sanhost01
          7:   All Devices
  
          Choose Device: 
  zekcli show device -zek=2000001B32A10C00 -fc_device=5006-0160-39A0-1122
  
  [ Device 0 on local host ]
  
  -fc_device=5006-0160-39A0-1122
  FC Target 
      WWNN:    5006-0160-89A0-1122
      WWPN:    5006-0160-39A0-1122
      Port ID: 01-02-00
      Target State = online, mapped, FC1
      Target Portal Mode = FCP
  
          
  
         [0:]  Adapter Information
          1:   Adapter Configuration
          2:   Adapter Updates
          3:   Adapter Diagnostics
          4:   Help
          5:   Exit (or use "q")
  
          Please Enter Selection: \r             \r*** ZEKCLI_EXIT (esc)

An adapter that sees nothing: each prompt says so, and the command runs
without the keyword (or, for a required one, asks for it as text).

  $ hbasim reset "$TESTDIR/scenarios/menu-bare.json" >/dev/null
  $ session '0\n2\n16\n\n0\nq\n'; grep -e 'Found' -e '^zekcli' screen.txt
  exit 58
  No targets Found
  zekcli show target -zek=2000001B32A10F00
  $ session '0\n2\n8\n\n0\nq\n'; grep -e 'Found' -e '^zekcli' screen.txt
  exit 58
  No LUNs Found
  zekcli show lun -zek=2000001B32A10F00
  $ session '0\n2\n4\n\n0\n\nq\n'; grep -e 'Found' -e '^zekcli' screen.txt
  exit 58
  No LUNs Found
  No drives Found
  zekcli show drive -zek=2000001B32A10F00
  $ session '0\n2\n7\n\n0\nq\n'; grep -e 'Found' -e '^zekcli' screen.txt
  exit 58
          Please Enter Selection: No initiators Found
  zekcli show initiator -zek=2000001B32A10F00
  $ session '0\n2\n3\n\n0\nq\n'; grep -e 'Found' -e '^zekcli' screen.txt
  exit 58
          Please Enter Selection: No devices Found
  zekcli show device -zek=2000001B32A10F00
  $ session '1\n4\n\n\nq\n'; from 'This command requires'
  exit 58
  This command requires a cluster ID, but no clusters are found on this adapter.
  
  destroy cluster -zek=2000001B32A10F00
  
  [Required] Enter a value for -clusterid= \r             \r*** ZEKCLI_EXIT (esc)
