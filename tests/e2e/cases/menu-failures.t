Menu mode when things go wrong.

  $ session() { printf "$1" | hostcli -zek > screen.txt; echo "exit $?"; }

A command that fails shows "*** " + the code's name + "-- " + its words, and
the session goes on with the main menu. "lock cache" needs -lun_size_lba and
-lun_start_lba, which no prompt asks for, so through the menus it always
fails in its own checks. ("lock" has one item, so no item menu is shown, and
no optional keyword, so the command runs at once.)

  $ session '1\n14\n\n\n1\n0\n5\n'; grep -A 3 '^zekcli' screen.txt
  exit 0
  zekcli lock cache -zek=2000001B32A10C00 -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0001
  
  *** Invalid argument-- 
  

A local scan that finds no adapter at all ends the session with 54 and says
why; nothing is saved.

  $ hbasim reset "$TESTDIR/scenarios/adapter-none.json" >/dev/null
  $ session '0\n2\n0\n\n'; tail -n 1 screen.txt
  exit 54
          Please Enter Selection: \r             \r*** ZEKCLI_CMD_FAIL -- There are no locally connected Korvane adapters and no remote agent has been selected - the CLI will now exit. (esc)
  $ ls zekcli.ini 2>&1
  zekcli.ini
  $ hbasim reset >/dev/null

An agent address that does not read is refused with the reason and asked for
again; an empty answer leaves the agent out. A remote agent's adapters are
offered once its address reads.

  $ session '0\n2\n0\n1\nnot-an-address\n\n0\nq\n'; grep -o -e 'IP address: [^[]*' -e '^        show adapter .*' screen.txt
  exit 58
          show adapter 
  IP address: "not-an-address" is not a numeric IPv4 or IPv6 address (host names are not looked up)
  IP address: 
          show adapter 
  $ session '0\n2\n0\n1\n127.0.10.1\nq\n'; grep -e '-zek=' -e 'Please enter' screen.txt | tail -n 3
  exit 58
          Please Enter Selection: [Optional]Please enter an IP address: 
          0:   -zek=2000001B32B20100

An agent that does not answer: the scan's code ends the session (1008,
which an exit status shows as 255).

  $ session '0\n2\n0\n1\n127.0.99.1\n'; tail -n 1 screen.txt
  exit 255
          Please Enter Selection: [Optional]Please enter an IP address: \r             \r*** No remote agent answers at this address (esc)

The end of input at any menu or prompt quits as "q" does at the main menu:
58, no command run, nothing saved. Here the answers stop at the main menu,
the action, item, agent and adapter menus, the agent address, the LUN's
"how" menu, the target, LUN, WWULN, drive, cluster and flag menus, a
required text keyword, a word list, the optional menu and an optional text
keyword.

  $ for answers in '' '0\n' '0\n2\n' '0\n2\n0\n' '0\n2\n0\n\n' '0\n2\n0\n1\n' \
  >     '0\n2\n8\n\n0\n' '0\n2\n8\n\n0\n2\n' '0\n2\n8\n\n0\n2\n0\n' '0\n2\n8\n\n0\n1\n' \
  >     '0\n2\n4\n\n0\n3\n' '0\n2\n2\n\n3\n' '0\n2\n4\n\n0\n3\n0\n' '1\n20\n\n\n' \
  >     '1\n7\n1\n\n\n1\n1\n' '1\n22\n0\n\n0\n' '1\n22\n0\n\n0\n0\n'; do
  >   printf "$answers" | hostcli -zek > screen.txt
  >   echo "$? $(grep -c '^zekcli' screen.txt) $answers"
  > done
  58 0 
  58 0 0\n
  58 0 0\n2\n
  58 0 0\n2\n0\n
  58 0 0\n2\n0\n\n
  58 0 0\n2\n0\n1\n
  58 0 0\n2\n8\n\n0\n
  58 0 0\n2\n8\n\n0\n2\n
  58 0 0\n2\n8\n\n0\n2\n0\n
  58 0 0\n2\n8\n\n0\n1\n
  58 0 0\n2\n4\n\n0\n3\n
  58 0 0\n2\n2\n\n3\n
  58 0 0\n2\n4\n\n0\n3\n0\n
  58 0 1\n20\n\n\n
  58 0 1\n7\n1\n\n\n1\n1\n
  58 0 1\n22\n0\n\n0\n
  58 0 1\n22\n0\n\n0\n0\n
  $ ls zekcli.ini 2>&1
  zekcli.ini
