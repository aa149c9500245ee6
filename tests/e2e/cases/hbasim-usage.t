hbasim explains itself with "help" and refuses what it does not know with
status 2 and a pointer to the help.

  $ hbasim help | head -3
  Usage: hbasim [--state FILE] COMMAND [ARGUMENTS]
  
  Creates, inspects and changes the simulated SAN behind libhbaclient.so.
  $ hbasim --help | tail -1
  Exit status: 0 done, 1 the state or a file could not be used, 2 bad arguments.
  $ hbasim 2>&1
  hbasim: no command given
  Try "hbasim help".
  [2]
  $ hbasim frobnicate 2>&1
  hbasim: unknown command "frobnicate"
  Try "hbasim help".
  [2]
  $ hbasim show extra 2>&1
  hbasim: show takes no arguments
  Try "hbasim help".
  [2]
  $ hbasim --state 2>&1
  hbasim: --state needs a file name
  Try "hbasim help".
  [2]

Nothing of this touched the state.

  $ ls -A .hbasim 2>&1
  ls: cannot access '.hbasim': No such file or directory
  [2]
