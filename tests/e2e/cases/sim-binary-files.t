Files of any bytes go to an adapter and come back unchanged: firmware and
FRU images are not text, and the simulator keeps them apart from text files
in its state.

  $ printf 'ZEK\x00\x01\x02\x7f\x80\xc3\xff\xfe\n\r\x1b"\\end' > fw.bin
  $ hostcli -zek put file -zek=0 -filepath=fw.bin
  [ Device 0 on local host ]
  
  "fw.bin" copied successfully to Fibre Channel Adapter
  $ hostcli -zek get file -zek=0 -filepath=back.bin -name=fw.bin
  [ Device 0 on local host ]
  
  Fibre Channel Adapter file "fw.bin" saved successfully to file: "back.bin"
  $ cmp fw.bin back.bin && echo same
  same
  $ od -A d -t x1 back.bin
  0000000 5a 45 4b 00 01 02 7f 80 c3 ff fe 0a 0d 1b 22 5c
  0000016 65 6e 64
  0000019

The state keeps it in base64, so the simulator's own commands still read it:

  $ hbasim export | grep -A 2 '"binaryFiles"'
     "binaryFiles": {
      "fw.bin": "WkVLAAECf4DD//4KDRsiXGVuZA=="
     },
  $ hbasim show | sed -n 1p
  SAN "default"

A larger image, as an administrator would put one:

  $ head -c 3000 /bin/true > image.bin
  $ hostcli -zek put file -zek=0 -filepath=image.bin -name=fru.img > /dev/null
  $ hostcli -zek get file -zek=0 -filepath=fru.back -name=fru.img > /dev/null
  $ cmp image.bin fru.back && echo same
  same

The same name given text afterwards holds the text, and only the text:

  $ printf 'version=4.3\n' > fw.txt
  $ hostcli -zek put file -zek=0 -filepath=fw.txt -name=fw.bin > /dev/null
  $ hostcli -zek get file -zek=0 -filepath=text.out -name=fw.bin > /dev/null
  $ cat text.out
  version=4.3
  $ hbasim export | grep -c '"fw.bin"'
  1

and binary content again replaces it:

  $ hostcli -zek put file -zek=0 -filepath=fw.bin > /dev/null
  $ hostcli -zek get file -zek=0 -filepath=again.bin -name=fw.bin > /dev/null
  $ cmp fw.bin again.bin && echo same
  same
  $ hbasim export | grep -c '"fw.bin"'
  1

Reading with -clear takes a binary file away like any other:

  $ hostcli -zek get file -zek=0 -filepath=last.bin -name=fw.bin -clear > /dev/null
  $ cmp fw.bin last.bin && echo same
  same
  $ hostcli -zek get file -zek=0 -filepath=gone.bin -name=fw.bin
  \r             \r*** Object not found (esc)
  [255]

Putting with -clear empties text and binary files alike:

  $ hostcli -zek put file -zek=0 -filepath=fw.txt > /dev/null
  $ hostcli -zek put file -zek=0 -filepath=fw.bin -name=only.bin -clear > /dev/null
  $ hostcli -zek get file -zek=0 -filepath=x -name=fru.img
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek get file -zek=0 -filepath=x -name=fw.txt
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek get file -zek=0 -filepath=only.out -name=only.bin > /dev/null
  $ cmp fw.bin only.out && echo same
  same

A file name is a name, not data: one that is not text is refused.

  $ hostcli -zek put file -zek=0 -filepath=fw.bin -name=$'fw\xff.bin'
  \r             \r*** Invalid argument (esc)
  [255]

A scenario whose base64 was damaged by hand is refused with the adapter and
the file named:

  $ hbasim export | sed 's/"only.bin": "W/"only.bin": "*/' > damaged.json
  $ hbasim check damaged.json
  hbasim: damaged.json: adapter 2000001B32A10C00 file "only.bin" is not valid base64
  [1]
