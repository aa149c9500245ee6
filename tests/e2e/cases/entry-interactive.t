A selector with nothing behind it starts the interactive session; "q" leaves
it with the exit code 58 and nothing is saved.

  $ printf 'q\n' | hostcli -pr zek >/dev/null
  [58]
  $ printf 'q\n' | hostcli -zek >/dev/null
  [58]
  $ ls zekcli.ini 2>&1
  ls: cannot access 'zekcli.ini': No such file or directory
  [2]
