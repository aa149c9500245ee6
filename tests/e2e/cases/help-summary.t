The summary lists every visible command. LUN configuration commands show only
on a first run, before any preferences exist; every later run hides them.

  $ hostcli -zek help cli | grep -c '^    create lun $'
  1
  $ hostcli -zek help cli | grep -c '^    create lun $'
  0
  [1]
  $ hostcli -zek ? cli | grep -c '^    create lun $'
  0
  [1]

It starts with the usage list and ends with the keywords common to all
commands:

  $ hostcli -zek help | head -n 4
    Usage:
      ? cli 
   
  
  $ hostcli -zek help | tail -n 8
  	Default location is the working directory
  
  
  
  
  For more detail on any of these commands start CLI with
  the action and item followed by -help or -?
  
  $ hostcli -zek help | grep -A 4 '^\*\*\*' | head -n 5
  *******************************************************
  * Modifiers common to all CLI commands
  *******************************************************
  
  -help	Displays detailed help for this command

Hidden groups still appear in the list of usage constraints:

  $ hostcli -zek help -constraint | head -n 1
    CLI commands with usage constraints:
  $ hostcli -zek help -constraint | grep -c '^    remove lun $'
  1
  $ hostcli -zek help | grep -c '^    remove lun $'
  0
  [1]

The summary goes to help.log when a text file is asked for:

  $ hostcli -zek help -quiet -textfile
  $ head -n 1 help.log
    Usage:
