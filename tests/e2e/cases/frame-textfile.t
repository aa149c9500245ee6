-textfile appends what the console shows to <action>_<item>.log in the
working directory, or to the file it names; the file grows.

  $ hostcli -zek version cli -textfile >/dev/null
  $ hostcli -zek version cli -textfile >/dev/null
  $ cat version_cli.log
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  $ hostcli -zek retval cli -rv=1005 -textfile=$HOME/mine.txt
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI return value "1005" ==> No adapter was found (esc)
  [54]
  $ cat mine.txt
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI return value "1005" ==> No adapter was found (esc)
  $ ls
  mine.txt
  version_cli.log
  zekcli.ini

A text file that cannot be written turns a success into 55 (named by the
management library), and the text still reaches the console, the failure
twice:

  $ hostcli -zek version cli -textfile=/nonexistent/t.log
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  \r             \r*** Unknown return code 55 -- Unable to open file "/nonexistent/t.log", (No such file or directory) (esc)
  \r             \r*** Unknown return code 55 -- Unable to open file "/nonexistent/t.log", (No such file or directory) (esc)
  [55]
