execute script runs a file of command lines in one process, one after the
other, each through the parser as if typed, numbered by its line in the file.
Comments (lines starting with # ! ; / or :) and empty lines are skipped but
counted. At the end come the banner, the outcome and the summary of the run.

A script that caches a LUN of the default SAN, takes it out again and caches
it once more; the simulator shows the result.

  $ printf '%s\n' '# cycle LUN array-b:2 on device 0' \
  >   'enable cache -zek=0 -mode=read_write_through -fc_target=21000024FF3C5A10 -lun_number=2' \
  >   '' \
  >   '/enable cache is a comment, like ; ! and :' \
  >   'disable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2' \
  >   'enable cache -zek=0 -mode=read_only -lun_wwuln=600A0B80002A1C3D0000000052B2A002' > cycle.cfg
  $ hostcli -zek execute script -file=cycle.cfg
  \r             \r2: [ Device 0 on local host ] (esc)
  
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  \r             \r5: [ Device 0 on local host ] (esc)
  
  Successfully disabled caching for LUN   -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  \r             \r6: [ Device 0 on local host ] (esc)
  
  Successfully enabled caching for LUN  -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  ??? [ local host ]
  
  Script "cycle.cfg" completed OK
  \r              (esc)
      IP = 0
      3 commands attempted, 3 successful
  
  
  
  $ hbasim show | grep -A1 "52B2A002 "
    600A0B80002A1C3D0000000052B2A002  direct access, 2 TiB, paths array-b:2
        cached read-only on 2000001B32A10C00

A script saved with CR LF line ends runs the same; a last line without a line
end is not run.

  $ printf 'version cli\r\ndisable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2\r\nenable cache -zek=0 -mode=read_only -fc_target=21000024FF3C5A10 -lun_number=2' > crlf.cfg
  $ hostcli -zek execute script -file=crlf.cfg
  \r             \r1:  (esc)
  Host Command Line Interface (CLI)
  Version 2.103.6.4.0.0
  
  
  \r             \r2: [ Device 0 on local host ] (esc)
  
  Successfully disabled caching for LUN   -fc_target=2100-0024-FF3C-5A10 -lun_number=2
  
  ??? [ local host ]
  
  Script "crlf.cfg" completed OK
  \r              (esc)
      IP = 
      1 commands attempted, 1 successful
  
      IP = 0
      1 commands attempted, 1 successful
  
  
  
  $ hbasim show | grep -A1 "52B2A002 " | grep -c cached
  0
  [1]

An empty script completes with nothing attempted.

  $ : > empty.cfg
  $ hostcli -zek execute script -file=empty.cfg
  ??? [ local host ]
  
  Script "empty.cfg" completed OK
  \r              (esc)
  
  

A script that cannot be opened is a parsing failure that names the file;
so is a folder.

  $ hostcli -zek execute script -file=nosuch.cfg
  \r             \r*** ZEKCLI_PARSE_FAIL -- Unable to open file "nosuch.cfg", (No such file or directory) (esc)
  [52]
  $ mkdir folder.cfg
  $ hostcli -zek execute script -file=folder.cfg
  \r             \r*** ZEKCLI_PARSE_FAIL -- Unable to open file "folder.cfg", (Is a directory) (esc)
  [52]
  $ hostcli -zek execute script
  Error:  -filepath modifier must be specified
    Command syntax:
      execute script
  	-file=<file name>
  	[-continue_on_error]
  
  Use "-?" on the command line for help
