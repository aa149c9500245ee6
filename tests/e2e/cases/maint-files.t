save fru_file and save capture_file write archives: a name that does not
end in ".tar.gz" gets that ending, judged from the second-last dot on.

  $ hostcli -zek save fru_file -zek=0 -filepath=kept.tar.gz -result
  [ Device 0 on local host ]
  
  FRU file saved successfully
  
  $ od -A d -t d4 save_fru_file.dat | sed -n 3p
  0000032           0           0
  $ hostcli -zek save fru_file -zek=0 -filepath=a.gz -quiet
  $ hostcli -zek save fru_file -zek=0 -filepath=tar.gz -quiet
  $ hostcli -zek save fru_file -zek=0 -filepath=plain -quiet
  $ ls *gz
  a.gz.tar.gz
  kept.tar.gz
  plain.tar.gz
  tar.gz.tar.gz
  $ hostcli -zek save capture_file -zek=1 -file=support
  [ Device 1 on local host ]
  
  Capture file saved successfully
  
  $ head -2 support.tar.gz
  ZEK system capture
  Adapter ID:      2000001B32A10D00

save demonstration_file keeps the name as given:

  $ hostcli -zek save demonstration_file -zek=0 -filepath=demo.json
  [ Device 0 on local host ]
  
  DEMONSTRATION file saved successfully
  
  $ test -s demo.json && echo written
  written

restore fru_file reports that a restart is needed; the library's code 1
reaches the result record.

  $ hostcli -zek restore fru_file -zek=0 -filepath=kept.tar.gz -result
  [ Device 0 on local host ]
  
  Restore successful -- 'restart adapter' is required for changes to take effect
  $ od -A d -t d4 restore_fru_file.dat | sed -n 3p
  0000032           1           0

A file the adapter cannot use is refused by the library:

  $ echo nonsense > bad.tar.gz
  $ hostcli -zek restore fru_file -zek=0 -filepath=bad.tar.gz
  "bad.tar.gz" is not a FRU file of this adapter family
  \r             \r*** Invalid argument (esc)
  [255]
  $ touch blocker
  $ hostcli -zek save fru_file -zek=0 -filepath=blocker/x
  cannot write "blocker/x.tar.gz": Not a directory
  \r             \r*** The file could not be read or written (esc)
  [255]
