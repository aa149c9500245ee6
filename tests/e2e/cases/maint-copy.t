put file copies a local file to the adapter, under -name or its own name;
get file copies it back.

  $ printf 'line one\nline two\n' > notes.txt
  $ hostcli -zek put file -zek=0 -filepath=notes.txt -result
  [ Device 0 on local host ]
  
  "notes.txt" copied successfully to Fibre Channel Adapter
  $ od -A d -t d4 put_file.dat | sed -n 3p
  0000032           0           0
  $ hostcli -zek put file -zek=0 -filepath=notes.txt -name=copy.txt
  [ Device 0 on local host ]
  
  "notes.txt" copied successfully to Fibre Channel Adapter file "copy.txt"
  $ hostcli -zek get file -zek=0 -filepath=back.txt -name=copy.txt -result
  [ Device 0 on local host ]
  
  Fibre Channel Adapter file "copy.txt" saved successfully to file: "back.txt"
  $ od -A d -t d4 get_file.dat | sed -n 3p
  0000032           0           0
  $ cmp notes.txt back.txt && echo same
  same

Without -name the adapter hands over a file of its own choosing:

  $ hostcli -zek get file -zek=0 -filepath=fromadapter.txt
  [ Device 0 on local host ]
  
  File "fromadapter.txt" saved successfully
  $ test -s fromadapter.txt && echo written
  written

-clear empties the adapter's file after it is read, so a second read finds
nothing:

  $ hostcli -zek get file -zek=0 -filepath=again.txt -name=copy.txt -clear
  [ Device 0 on local host ]
  
  Fibre Channel Adapter file "copy.txt" saved successfully to file: "again.txt"
  $ hostcli -zek get file -zek=0 -filepath=third.txt -name=copy.txt
  \r             \r*** Object not found (esc)
  [255]

A local file that does not exist is the library's to refuse:

  $ hostcli -zek put file -zek=0 -filepath=missing.txt
  cannot open "missing.txt": No such file or directory
  \r             \r*** The file could not be read or written (esc)
  [255]
