show system_capture shows the adapter's capture as one text, without a
banner:

  $ hostcli -zek show system_capture -zek=0 | head -3
  ZEK system capture
  Adapter ID:      2000001B32A10C00
  Symbolic name:   zek-prod-a

-file is accepted and not used: the capture still goes to the console, and
no file is written. -textfile keeps a copy:

  $ hostcli -zek show system_capture -zek=0 -file=cap.txt | head -1
  ZEK system capture
  $ test -e cap.txt || echo absent
  absent
  $ hostcli -zek show system_capture -zek=1 -textfile=copy.txt > shown.txt
  $ cmp shown.txt copy.txt && head -2 copy.txt
  ZEK system capture
  Adapter ID:      2000001B32A10D00

A refusal of the library is passed on as it stands:

  $ hbasim fault 2000001B32A10C00 getSystemCapture 1000 > /dev/null
  $ hostcli -zek show system_capture -zek=0
  \r             \r*** General failure (esc)
  [255]

An adapter that is not there:

  $ hostcli -zek show system_capture -zek=9
  \r             \r*** Object not found (esc)
  [255]
