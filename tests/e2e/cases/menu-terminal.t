Menu mode in a real terminal, as a person sees it: the answers typed are
echoed after each prompt, and the frame's report of the quit overwrites the
blank line behind the last one.

  $ terminal start hostcli -zek
  $ terminal prompt 'Please Enter Selection:'
  $ terminal screen
  
          HalvardConsole
  
          Korvane CLI - Version 2.103.6.4
  
  
  
         [0:]  Adapter Information
          1:   Adapter Configuration
          2:   Adapter Updates
          3:   Adapter Diagnostics
          4:   Help
          5:   Exit (or use "q")
  
          (m or 98: Main Menu; q or 99: Quit; h or ?  - Help)
          Please Enter Selection:

Information, then "show"; "health" is item 6 of its menu. The command's
output follows the command line it ran, then the main menu again.

  $ terminal keys 0 Enter
  $ terminal wait 'view            [ log ]'
  $ terminal keys 2 Enter
  $ terminal wait 'system_capture'
  $ terminal keys 6 Enter
  $ terminal wait 'Enter a host IP address'
  $ terminal keys Enter
  $ terminal wait '2:   -zek=2000001B32A10E00'
  $ terminal keys 1 Enter
  $ terminal wait 'System Uptime'
  $ terminal prompt 'Please Enter Selection:'
  $ terminal screen | sed -n '/Please Enter Selection: 1/,/PCIe port 0/p'
          Please Enter Selection: 1
  
  zekcli show health -zek=2000001B32A10D00
  
  [ Device 1 on local host ]
  
      PCIe port 0
  $ terminal screen | tail -n 2
          (m or 98: Main Menu; q or 99: Quit; h or ?  - Help)
          Please Enter Selection:

"q" quits; the terminal shows how the program ended.

  $ terminal keys q Enter
  $ terminal end
  exit 58
  $ terminal screen | tail -n 3
          (m or 98: Main Menu; q or 99: Quit; h or ?  - Help)
          Please Enter Selection: q
  *** ZEKCLI_EXIT
  $ terminal stop
  $ ls zekcli.ini 2>&1
  ls: cannot access 'zekcli.ini': No such file or directory
  [2]
