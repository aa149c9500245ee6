A selector with nothing behind it is the command "interactive cli": the menu
session starts with its main menu. Here standard input is empty, and the end
of input quits the session as "q" does: 58, and nothing is saved.

  $ hostcli -pr zek </dev/null | grep -c HalvardConsole
  1
  $ hostcli -pr zek </dev/null >/dev/null
  [58]
  $ hostcli -zek </dev/null | tail -n 1
          Please Enter Selection: \r             \r*** ZEKCLI_EXIT (esc)
  $ ls zekcli.ini 2>&1
  ls: cannot access 'zekcli.ini': No such file or directory
  [2]
