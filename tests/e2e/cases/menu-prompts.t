Menu mode: the prompts that fill a command's keywords. "screen" shows what a
session wrote with the banner and key reminder of each menu left out.

  $ session() { printf "$1" | hostcli -zek > screen.txt; echo "exit $?"; }
  $ screen() { grep -v -e '^        HalvardConsole$' -e '^        Korvane CLI' -e '^        (m or 98' screen.txt | cat -s; }

A required keyword given as text is asked for until it has a value: "retval
cli" (Configuration 20, its only item, local adapters, the first adapter)
asks for -rv three times here, then runs. That command always reports the
code it explains as its failure, and the session shows that line and goes
on.

  $ session '1\n20\n\n\n\n  \n1206\nq\n'; screen | sed -n '/-zek=2000001B32A10C00$/,/^\*\*\*\|Selection: $/p' | head -n 12
  exit 58
         [0:]  -zek=2000001B32A10C00
          1:   -zek=2000001B32A10D00
          2:   -zek=2000001B32A10E00
  
          Please Enter Selection: 
  retval cli -zek=2000001B32A10C00
  
  [Required] Enter a value for -rv= [Required] Enter a value for -rv= [Required] Enter a value for -rv= 
  zekcli retval cli -zek=2000001B32A10C00 -rv=1206
  
  *** ZEKCLI_CMD_FAIL-- CLI return value "1206" ==> Object not found

The same keyword is offered with the value it holds from the last command of
the session; Enter keeps it.

  $ session '1\n20\n\n\n1206\n1\n20\n\n\n\nq\n'; grep -o 'Enter a new value.*]: ' screen.txt
  exit 58
  Enter a new value or use <enter> to continue [-rv=1206]: 

A keyword whose values are words offers them in a menu, the second word as
default: -mode of "enable cache". The LUN is chosen by WWULN first (the how
menu has no "All LUNs": caching is always about one LUN). The adapter's
drives are offered too, as the LUNs it presents them as; the adapter refuses
to cache them.

  $ session '1\n7\n1\n\n\n1\n1\n\nq\n'; screen | sed -n '/specifiy a LUN/,/Select: /p'
  exit 58
          Please choose how you would like to specifiy a LUN: 
  
          enable cache -zek=2000001B32A10C00
  
         [0:]  -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0001
          1:   -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0002
          2:   -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-00FF
          3:   -lun_wwuln=600A-0B80-002A-1C3D-0000-0000-52B2-A001
          4:   -lun_wwuln=600A-0B80-002A-1C3D-0000-0000-52B2-A002
          5:   -lun_wwuln=600A-0B80-002A-1C3D-0000-0000-52B2-A003
          6:   -lun_wwuln=600A-0B80-002A-1C3D-0000-0000-52B2-A0F0
          7:   -lun_wwuln="vault.example:lun-archive-07"
          8:   -lun_wwuln=2000-001B-32A1-0C00-0000-0000-0000-0001
          9:   -lun_wwuln=5000-C532-A10C-0000
         10:   -lun_wwuln=5000-C532-A10C-0001
         11:   -lun_wwuln=5000-C532-A10C-0002
         12:   -lun_wwuln=5000-C532-A10C-0003
  
          [Required] Choose WWULN: 
  
  enable cache -zek=2000001B32A10C00 -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0002
  
          enable cache -zek=2000001B32A10C00 -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0002
  
          0:   -mode=none
         [1:]  -mode=read_write_through
          2:   -mode=read_write_back
          3:   -mode=read_only
          4:   -mode=write_through_only
          5:   -mode=write_back_only
  
          [Required] Select: 

Enter takes read_write_through; the optional keywords follow, and Enter runs
the command.

  $ session '1\n7\n1\n\n\n1\n1\n\n\nq\n'; screen | sed -n '/Select: $/,/Successfully/p'
  exit 58
          [Required] Select: 
  
          enable cache -zek=2000001B32A10C00 -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0002 -mode=read_write_through
  
          0:   -profile
          1:   -max_cache
          2:   -max_read
          3:   -max_write
          4:   -min_read
          5:   -min_write
          6:   -mirror
         [7:]  Execute
  
          Choose an optional input, or <Enter> to execute: 
  zekcli enable cache -zek=2000001B32A10C00 -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0002 -mode=read_write_through
  
  [ Device 0 on local host ]
  
  Successfully enabled caching for LUN  -fc_target=5006-0160-39A0-1122 -lun_number=1
  $ hostcli -zek show lun -zek=0 -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0002 | grep -i 'cached'
          Reads with size  0 KB to 1024 KB will be cached
          Writes with size 0 KB to 1024 KB will be cached
          Reads with size  0 KB to 1024 KB will be cached
          Writes with size 0 KB to 1024 KB will be cached

Flags are chosen in a menu that repeats until "Continue": each choice
toggles, and of -loop_only, -p2p_only and -auto only the last one chosen
stays ("set fc", Configuration 22, item 2). The first menu in full, then
of each menu the flags chosen; the required -port follows.

  $ session '1\n22\n2\n\n\n0\n2\n1\n1\n1\n\n1\n\nq\n'; screen | sed -n '/^set fc -zek=2000001B32A10C00$/,/Select: $/p'
  exit 58
  set fc -zek=2000001B32A10C00
  
          set fc -zek=2000001B32A10C00
  
          0:   -loop_only [ ]  (not selected)
          1:   -p2p_only  [ ]  (not selected)
          2:   -auto      [ ]  (not selected)
         [3:]  Continue using these selections
  
          Select: 
  $ grep -e 'Selected)' -e 'Continue using' screen.txt
         [3:]  Continue using these selections
          0:   -loop_only [X]  (Selected)
         [3:]  Continue using these selections
          2:   -auto      [X]  (Selected)
         [3:]  Continue using these selections
          1:   -p2p_only  [X]  (Selected)
         [3:]  Continue using these selections
         [3:]  Continue using these selections
          1:   -p2p_only  [X]  (Selected)
         [3:]  Continue using these selections
  $ screen | sed -n '/^set fc -zek=2000001B32A10C00 -p2p_only$/,/^zekcli/p'
  set fc -zek=2000001B32A10C00 -p2p_only
  
  [Required] Enter a value for -port= 
  
          set fc -zek=2000001B32A10C00 -p2p_only -port=1
  
          0:   -fc_link_rate
          1:   -exec_throttle
         [2:]  Execute
  
          Choose an optional input, or <Enter> to execute: 
  zekcli set fc -zek=2000001B32A10C00 -p2p_only -port=1

The optional menu shows a keyword given in this session with its value
behind it, padded to 15 characters: "set adapter -name" (which works).

  $ session '1\n22\n0\n\n0\n0\nzek-menu\n\nq\n'; screen | sed -n '/optional input/,/^zekcli/p' | tail -n 8
  exit 58
  
          set adapter -zek=2000001B32A10C00 -name=zek-menu
  
          0:   -name          [ zek-menu ]
         [1:]  Execute
  
          Choose an optional input, or <Enter> to execute: 
  zekcli set adapter -zek=2000001B32A10C00 -name=zek-menu
  $ hostcli -zek show adapter -zek=0 | grep 'Symbolic Name'
          Symbolic Name       = zek-menu
