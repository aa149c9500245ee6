-help or -? on any command shows its detailed help and returns 0, without
device checks; with -result it also shows the layout of the result record.

  $ hostcli -zek retval cli -help
  
  Syntax: retval cli
  	-rv=<return value>
  
  Modifiers:
  -rv=<return value>
  	The return value of an earlier CLI command, in decimal.
  
  
  Examples: 
  admin@localhost:~/> cli retval cli -rv=52
  
  admin@localhost:~/> cli retval cli -rv=1005
  
  
  
  $ hostcli -zek show lun -? -result -agent=192.0.2.1 | tail -n 10
  
  Result File: 	int    nHeaderSizeInBytes;  8*sizeof(int) = 32 bytes
  	int    apiVersion[4];
  	int    cmdAction;           (See CmdAction::CMD_ACTION)
  	int    cmdItem;             (See CmdItem::CMD_ITEM)
  	int    completionStatus;    {See HbaMgmtApi::MHBA_RETURN
  
  
  
  

Documentation fragments: one file per item title and one per help string of
each command.

  $ mkdir doc
  $ hostcli -zek help -genhelpdoc=doc/cli
  $ ls doc | wc -l
  859
  $ cat doc/cli1.txt
  cli (no-eol)
  $ cat doc/cli1_1_2.txt
  ? cli (no-eol)
  $ hostcli -zek help -genhelpdoc=nodir/cli
  \r             \r*** ZEKCLI_CMD_FAIL (esc)
  [54]
