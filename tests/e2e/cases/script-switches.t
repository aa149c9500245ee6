-quiet, -show_only_error, -echo and -textfile given to execute script are
added to every line of the script.

  $ printf '%s\n' 'version cli' 'retval cli -rv=54' 'version cli' > run.cfg

-quiet: nothing at all on the console, also not the failure.

  $ hostcli -zek execute script -file=run.cfg -quiet
  [54]

-show_only_error: the line numbers, the failures and the summary.

  $ hostcli -zek execute script -file=run.cfg -show_only_error -continue_on_error
  \r             \r1: \r             \r2: \r             \r*** ZEKCLI_CMD_FAIL -- CLI Command execution failed (esc)
  \r             \r3: \r              (esc)
      IP = 
      3 commands attempted, 2 successful, 1 failed
          "retval cli"
              ZEKCLI_CMD_FAIL at line 2
  
  
  
  

-echo: each line as it is run, with what was added to it.

  $ hostcli -zek execute script -file=run.cfg -echo -continue_on_error
  execute script -file=run.cfg -echo -continue_on_error 
  \r             \r1: version cli -echo (esc)
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  \r             \r2: retval cli -rv=54 -echo (esc)
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI Command execution failed (esc)
  \r             \r3: version cli -echo (esc)
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  ??? [ local host ]
  
  Script "run.cfg" completed OK
  \r              (esc)
      IP = 
      3 commands attempted, 2 successful, 1 failed
          "retval cli"
              ZEKCLI_CMD_FAIL at line 2
  
  
  
  

-textfile with a name: every line's text goes to that one file.

  $ hostcli -zek execute script -file=run.cfg -continue_on_error -quiet -textfile=run.log
  $ cat run.log
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  \r             \r*** ZEKCLI_CMD_FAIL -- CLI Command execution failed (esc)
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  ??? [ local host ]
  
  Script "run.cfg" completed OK
  \r              (esc)
      IP = 
      3 commands attempted, 2 successful, 1 failed
          "retval cli"
              ZEKCLI_CMD_FAIL at line 2
  
  
  
  

-textfile without a name: the file is named after the script, cut at its
last dot, with the local date and time of the start of the run.

  $ mkdir my.cfg
  $ printf 'version cli\n' > my.cfg/run
  $ hostcli -zek execute script -file=my.cfg/run -quiet -textfile
  $ ls | grep -E '^my_[0-9]{8}_[0-9]{6,9}\.log$' | wc -l
  1
  $ head -n 3 my_*.log
  
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
