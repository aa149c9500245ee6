Bytes that are not UTF-8 in a name are a bad value like any other: the
library answers "Invalid argument", nothing is changed, and inside a script
the run goes on with -continue_on_error.

  $ hostcli -zek set adapter -zek=0 $'-name=\xffab'
  \r             \r*** Invalid argument (esc)
  [255]
  $ hostcli -zek create lun -zek=0 -size=20 $'-name=\xc3'
  \r             \r*** Invalid argument (esc)
  [255]
  $ hostcli -zek create lun -zek=0 -size=20 -name=plain | grep created
  LUN created successfully,  -lun_wwuln=2000-001B-32A1-0C00-0000-0000-0000-0002
  $ T='-lun_number=1 -fc_target=2100-001B-32A1-0C00 -vpgindex=1 -zek=0'
  $ hostcli -zek modify lun $T $'-name=a\xed\xa0\x80'
  [ Device 0 on local host ]
  
  \r             \r*** Invalid argument (esc)
  [255]
  $ hostcli -zek show lun $T | grep -i 'name'
      Symbolic Name = "plain"
  $ hostcli -zek show adapter -zek=0 | grep -i 'symbolic'
          Symbolic Name       = zek-prod-a
  $ printf '%s\n' $'set adapter -zek=0 -name=\xfe' 'version cli' > bad.cfg
  $ hostcli -zek execute script -file=bad.cfg -continue_on_error -quiet
  $ hostcli -zek execute script -file=bad.cfg -quiet
  [255]

A keyword prefix with no name behind it says where parsing stopped.

  $ hostcli -zek show adapter --zek=0
  *** ZEKCLI_PARSE_FAIL
      Could not parse modifier near -zek=0 
  -->Syntax: show adapter
  	[-zek=<adapter>]
  
  [52]
  $ hostcli -zek show adapter -=1
  *** ZEKCLI_PARSE_FAIL
      Could not parse modifier near =1 
  -->Syntax: show adapter
  	[-zek=<adapter>]
  
  [52]
