Menu mode: the way from the main menu to a command. "screen" shows what a
session wrote with the banner and key reminder of each menu left out.

  $ session() { printf "$1" | hostcli -zek > screen.txt; echo "exit $?"; }
  $ screen() { grep -v -e '^        HalvardConsole$' -e '^        Korvane CLI' -e '^        (m or 98' screen.txt | cat -s; }

The Configuration group holds every action not about information, updates
or diagnostics, "help", "?" and "interactive" among them. Indexes of 10 and
more are indented by one blank less.

  $ session '1\nq\n'; sed -n '/\]  ?   /,/wait   /p' screen.txt
  exit 58
         [0:]  ?               [ cli ]
          1:   add             [ drive | member ]
          2:   clear           [ display | log | lun_statistics | reservation | 
                              statistics ]
          3:   create          [ cluster | lun ]
          4:   destroy         [ cluster ]
          5:   disable         [ beacon | cache | fc_port ]
          6:   dump            [ cache ]
          7:   enable          [ beacon | cache | fc_port ]
          8:   execute         [ script ]
          9:   factory_reset   [ adapter ]
         10:   flush           [ cache ]
         11:   help            [ cli ]
         12:   interactive     [ cli ]
         13:   invalidate      [ cache ]
         14:   lock            [ cache ]
         15:   merge           [ csv ]
         16:   modify          [ cache | lun ]
         17:   purge           [ cache ]
         18:   remove          [ drive | lun | member | cache_pool ]
         19:   restart         [ adapter ]
         20:   retval          [ cli ]
         21:   script          [ csv ]
         22:   set             [ adapter | append | fc | password | pool | target ]
         23:   unlock          [ cache ]
         24:   version         [ adapter | cli ]
         25:   wait            [ time ]

The item menu lists the items of the action; "cache_statistics" is not
among them (nor in the action menu), although "show cache_statistics" is a
command.

  $ session '0\n2\nq\n'; grep -c cache_statistics screen.txt; sed -n '/show $/,$p' screen.txt
  exit 58
  0
          show 
  
         [0:]  adapter
          1:   append
          2:   cluster
          3:   device
          4:   drive
          5:   fc
          6:   health
          7:   initiator
          8:   lun
          9:   lun_statistics
         10:   memory
         11:   pool
         12:   reservation
         13:   sfp
         14:   statistics
         15:   system_capture
         16:   target
  
          (m or 98: Main Menu; q or 99: Quit; h or ?  - Help)
          Please Enter Selection: \r             \r*** ZEKCLI_EXIT (esc)

An action with one item takes it without asking: "report" goes straight to
the agent menu for "report log".

  $ session '0\n1\nq\n'; screen | tail -n 6
  exit 58
          report log 
  
         [0:]  Work with locally connected adapters
          1:   Enter a host IP address for a Remote Agent
  
          Please Enter Selection: \r             \r*** ZEKCLI_EXIT (esc)

"help" and "?" only remind the user what to do, and the session goes on.

  $ session '1\n11\n1\n0\nq\n'; grep -c 'Please select a command action from the list' screen.txt
  exit 58
  2

The agent menu, and its help (then back to the main menu).

  $ session '0\n2\n0\nh\nq\n'; screen | sed -n '/show adapter $/,/is running on/p'; grep -c 'Adapter Information' screen.txt
  exit 58
          show adapter 
  
         [0:]  Work with locally connected adapters
          1:   Enter a host IP address for a Remote Agent
  
          Please Enter Selection: 
  
  Korvane adapters can be managed directly if they are installed in the same
  host that is running this command line utility, but they can also be managed
  indirectly via a shared Fibre Channel connection or by use of an agent running
  on another host computer.
  
  If a remote agent is to be used, it must be specified first, so that the
  choices of adapters that can be reached wil be based on adapters reachable from
  the remote host rather than the host this CLI is running on.
  2

The adapter menu: each adapter the scan finds, the offline one
(2000001B32A10F00) left out. "show adapter" has a -zek of its own that may be
left out: "All Adapters" is offered, and is the default.

  $ session '0\n2\n0\n\nh\nq\n'; screen | sed -n '/-zek=2000001B32A10C00$/,/from the list/p'
  exit 58
          0:   -zek=2000001B32A10C00
          1:   -zek=2000001B32A10D00
          2:   -zek=2000001B32A10E00
         [3:]  All Adapters
  
          Please Enter Selection: 
  
  Korvane adapters can be managed directly if they are installed in the same
  host that is running this command line utility, but they can also be managed
  indirectly via a shared Fibre Channel connection or by use of an agent running
  on another host computer.
  
  Selecting "All Adapters" will apply the command to all of the adapters in
  the list, or you can select a specific adapter from the list.

"show health" must name one adapter: no "All Adapters", and its help says
so.

  $ session '0\n2\n6\n\nh\nq\n'; screen | sed -n '/-zek=2000001B32A10C00$/,/from the list/p'
  exit 58
         [0:]  -zek=2000001B32A10C00
          1:   -zek=2000001B32A10D00
          2:   -zek=2000001B32A10E00
  
          Please Enter Selection: 
  
  Korvane adapters can be managed directly if they are installed in the same
  host that is running this command line utility, but they can also be managed
  indirectly via a shared Fibre Channel connection or by use of an agent running
  on another host computer.
  You can select a specific adapter from the list.

Choosing an adapter writes it on the command line shown; the command runs
and the session starts over at the main menu.

  $ session '0\n2\n6\n\n1\nq\n'; screen | sed -n '/^zekcli/,/PCIe port 0/p'; screen | tail -n 4
  exit 58
  zekcli show health -zek=2000001B32A10D00
  
  [ Device 1 on local host ]
  
      PCIe port 0
          4:   Help
          5:   Exit (or use "q")
  
          Please Enter Selection: \r             \r*** ZEKCLI_EXIT (esc)
