list drive lists the adapter's drives by pool: the members of the cache
pool ("Configured") first, then the free drives ("Unconfigured"), each pool
with its count of the adapter's drives. A pool with no drive is not shown.

  $ hostcli -zek list drive -zek=0
  [ Device 0 on local host ]
  
  Configured Drives (3 of 4)
      -drive=5000-C532-A10C-0000
      -drive=5000-C532-A10C-0001
      -drive=5000-C532-A10C-0002
  
  
  Unconfigured Drives (1 of 4)
      -drive=5000-C532-A10C-0003
  
  
  
  
The last pool ends in three line ends and one more ends the text, which is
shown, as every text is, with a line end of its own.

  $ hostcli -zek list drive -zek=1 | od -c | tail -3
  0000300   0   0   -   C   5   3   2   -   A   1   0   D   -   0   0   0
  0000320   3  \n  \n  \n  \n  \n
  0000326

The result record holds the identifier of every drive: an 8-byte header
(its size, the count), then per drive a 4-byte size of 292 and the 288-byte
image of its identifier (class tag 1004, length, code set 1 for a binary
world-wide name, name length, name bytes).

  $ hostcli -zek list drive -zek=0 -result=list.dat -quiet
  $ wc -c < list.dat
  1220
  $ od -A d -t d4 -j 36 -N 16 list.dat
  0000036        1180           8           4         292
  0000052
  $ od -A d -t d4 -j 60 -N 16 list.dat
  0000060        1004          16           1           8
  0000076
  $ od -A d -t x1 -j 76 -N 8 list.dat
  0000076 50 00 c5 32 a1 0c 00 00
  0000084
  $ od -A d -t d4 -j 340 -N 4 list.dat
  0000340         292
  0000344

An adapter without drives has no pool to list, and an empty payload.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hostcli -zek list drive -zek=1 -result=none.dat
  [ Device 1 on local host ]
  
  
  
  $ od -A d -t d4 -j 36 -N 16 none.dat
  0000036          12           8           0           0
  0000052

A drive that carries the configuration of another adapter is not a member
of this adapter's pool, whatever that configuration says; nor is an offline
or locked drive. Text names are listed as they are.

  $ hostcli -zek list drive -zek=0
  [ Device 0 on local host ]
  
  Configured Drives (1 of 6)
      -drive=5000-C500-D1A0-0000
  
  
  Unconfigured Drives (5 of 6)
      -drive=5000-C500-D1A0-0001
      -drive=5000-C500-D1A0-FF00
      -drive=5000-C500-D1A0-FF01
      -drive=5000-C500-D1A0-0009
      -drive=SLOT-7-SSD
  
  
  
  

When some drives cannot be read, the command says so first, with no line
end before the pools, lists what it could read and still succeeds; the
result record carries the partial success (2) and every drive read.

  $ hbasim partial zek-new getDrivesWithErrorDetails 1006
  $ hostcli -zek list drive -zek=0 -result=partial.dat
  [ Device 0 on local host ]
  
  getDrives returned partial success.  At least one attempt to get info returned The adapter does not respond (it is offline or restarting)Configured Drives (1 of 6)
      -drive=5000-C500-D1A0-0000
  
  
  Unconfigured Drives (5 of 6)
      -drive=5000-C500-D1A0-0001
      -drive=5000-C500-D1A0-FF00
      -drive=5000-C500-D1A0-FF01
      -drive=5000-C500-D1A0-0009
      -drive=SLOT-7-SSD
  
  
  
  
  $ od -A d -t d4 -j 32 -N 16 partial.dat
  0000032           2        1764           8           6
  0000048

An adapter that stops answering once it has been found gets its code, and
nothing is listed; an adapter that is not there is not found.

  $ hbasim fault zek-new getDrivesWithErrorDetails 1006
  $ hostcli -zek list drive -zek=0
  \r             \r*** The adapter does not respond (it is offline or restarting) (esc)
  [255]
  $ hostcli -zek list drive -zek=9
  \r             \r*** Object not found (esc)
  [255]

A result record that cannot be written makes the command fail with 55.

  $ hostcli -zek list drive -zek=1 -result=/nonexistent/r.dat -quiet
  [55]
