A failing line stops the script: the lines after it are not read, the
effects of the lines before it stay, and the script answers with the failing
line's code and its message. The summary names the failing command and its
line.

  $ printf '%s\n' 'enable cache -zek=0 -mode=read_write_through -fc_target=21000024FF3C5A10 -lun_number=2' \
  >   'disable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2' \
  >   'disable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2' \
  >   'version cli' > fail.cfg
  $ hostcli -zek execute script -file=fail.cfg
  \r             \r1: [ Device 0 on local host ] (esc)
  
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  \r             \r2: [ Device 0 on local host ] (esc)
  
  Successfully disabled caching for LUN   -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  \r             \r3: \r             \r*** The LUN is not cached (esc)
  ??? [ local host ]
  
  Script "fail.cfg" failed to complete
  \r              (esc)
      IP = 0
      3 commands attempted, 2 successful, 1 failed
          "disable cache"
              The LUN is not cached at line 3
  
  
  
  
  \r             \r*** The LUN is not cached (esc)
  [255]

With -continue_on_error every line runs and the script completes OK; the
failures are seen only in the summary. The run statistics group the lines by
the -zek they name.

  $ hostcli -zek execute script -file=fail.cfg -continue_on_error
  \r             \r1: [ Device 0 on local host ] (esc)
  
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  \r             \r2: [ Device 0 on local host ] (esc)
  
  Successfully disabled caching for LUN   -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  \r             \r3: \r             \r*** The LUN is not cached (esc)
  \r             \r4:  (esc)
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  ??? [ local host ]
  
  Script "fail.cfg" completed OK
  \r              (esc)
      IP = 0
      3 commands attempted, 2 successful, 1 failed
          "disable cache"
              The LUN is not cached at line 3
  
  
      IP = 
      1 commands attempted, 1 successful
  
  
  

A line that does not parse has no command of its own: it is counted as a
"Parse Error" under the address "******", and its message closes the run.

  $ printf '%s\n' 'version cli' 'show lun -frob' 'version cli' > parse.cfg
  $ hostcli -zek execute script -file=parse.cfg
  \r             \r1:  (esc)
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  ??? [ local host ]
  
  Script "parse.cfg" failed to complete
  \r              (esc)
      IP = 
      1 commands attempted, 1 successful
  
      IP = ******
      1 commands attempted, 0 successful, 1 failed
          "Parse Error"
              ZEKCLI_PARSE_FAIL at line 2
  
  
  
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- Could not parse modifier near  (esc)
  -->Syntax: show lun
  	[-lun_wwuln=<wwuln>]
  	[-lun_any_wwuln=<wwuln or serial>]
  	[-lun_serial=<serial>]
  	[-lun_number=<number>]
  	[-vpgindex=<index>]
  	[-fc_target=<wwpn>]
  	[-is_target=<iscsi name>]
  	[-zek=<adapter>]
  
  [52]
  $ printf '%s\n' 'nonsense words' 'version cli' > words.cfg
  $ hostcli -zek execute script -file=words.cfg -continue_on_error
  \r             \r2:  (esc)
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  ??? [ local host ]
  
  Script "words.cfg" completed OK
  \r              (esc)
      IP = ******
      1 commands attempted, 0 successful, 1 failed
          "Parse Error"
              ZEKCLI_PARSE_FAIL at line 1
  
  
      IP = 
      1 commands attempted, 1 successful
  
  
  
