Menu mode: "hostcli -zek" alone starts "interactive cli", a session of
numbered menus. The main menu, byte for byte; "q" quits with 58 and saves
nothing (the frame reports ZEKCLI_EXIT behind the prompt).

  $ printf 'q\n' | hostcli -zek
  
          HalvardConsole
  
          Korvane CLI - Version 2.103.6.4
  
          
  
         [0:]  Adapter Information
          1:   Adapter Configuration
          2:   Adapter Updates
          3:   Adapter Diagnostics
          4:   Help
          5:   Exit (or use "q")
  
          (m or 98: Main Menu; q or 99: Quit; h or ?  - Help)
          Please Enter Selection: \r             \r*** ZEKCLI_EXIT (esc)
  [58]
  $ ls zekcli.ini 2>&1
  ls: cannot access 'zekcli.ini': No such file or directory
  [2]

A helper for the rest: it feeds the answers, keeps the screen and tells the
exit status; "menus" counts the menus shown, "marked" shows the default
entries ("[N:]").

  $ session() { printf "$1" | hostcli -zek > screen.txt; echo "exit $?"; }
  $ menus() { grep -c HalvardConsole screen.txt; }
  $ marked() { grep '^ *\[[0-9]*:\]' screen.txt; }

An empty line takes the default entry: Adapter Information, whose action
menu lists each action with its items.

  $ session '\nq\n'; sed -n '/list   /,/view   /p' screen.txt
  exit 58
         [0:]  list            [ adapter | cluster | device | drive | initiator | 
                              log | lun | target ]
          1:   report          [ log ]
          2:   show            [ adapter | append | cluster | device | drive | fc | 
                              health | initiator | lun | 
                              lun_statistics | memory | pool | 
                              reservation | sfp | statistics | 
                              system_capture | target ]
          3:   view            [ log ]

"Exit" (entry 5) ends with 0, and the preferences are saved with the last
action and item chosen; the next session offers them as defaults: "show"
and "adapter" after a "show adapter".

  $ session '0\n2\n0\n\n0\n5\n'
  exit 0
  $ ls zekcli.ini
  zekcli.ini
  $ session '0\n2\nq\n'; marked
  exit 58
         [0:]  Adapter Information
         [2:]  show            [ adapter | append | cluster | device | drive | fc | 
         [0:]  adapter

"m" and "98" go back to the main menu, "99" quits like "q", and so does
"q" with blanks in front of it. Case counts: "Q" is no key, and the menu is
shown again, as for "x", "7" (no such entry), "-1" and "2147483648".

  $ session 'm\n98\nq\n'; menus
  exit 58
  3
  $ session '99\n'; menus
  exit 58
  1
  $ session '  q\n'; menus
  exit 58
  1
  $ session 'Q\nx\n7\n-1\n2147483648\nq\n'; menus
  exit 58
  6

Only the first character counts for keys and the leading number for
numbers: "quit" quits, "5x" is entry 5, Exit. Of an answer longer than 32
characters the first 32 are dropped before the number is read; one of 32
nines is read whole, a number too large for any entry.

  $ session 'quit\n'
  exit 58
  $ session '5x\n'
  exit 0
  $ session '9999999999999999999999999999999900000005\n'
  exit 0
  $ session '99999999999999999999999999999999\nq\n'; menus
  exit 58
  2

"h", "?" and entry 4 show the summary help of all commands, then the main
menu again; so does "help", but not "H".

  $ session 'h\nq\n'; menus; grep -c 'Usage:' screen.txt
  exit 58
  2
  1
  $ session '?\nq\n'; menus; grep -c 'Usage:' screen.txt
  exit 58
  2
  1
  $ session '4\nhelp\nH\nq\n'; menus; grep -c 'Usage:' screen.txt
  exit 58
  4
  2
