A selector with nothing behind it is the command "interactive cli". The menu
session itself is not built yet, so the command says so and fails with 54;
nothing is saved.

  $ hostcli -pr zek </dev/null
  \r             \r*** ZEKCLI_CMD_FAIL -- The command "interactive cli" is not available in this build yet (esc)
  [54]
  $ hostcli -zek </dev/null
  \r             \r*** ZEKCLI_CMD_FAIL -- The command "interactive cli" is not available in this build yet (esc)
  [54]
  $ ls zekcli.ini 2>&1
  ls: cannot access 'zekcli.ini': No such file or directory
  [2]
