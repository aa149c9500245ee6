Without -zek, list lun scans every adapter of the host and prints one line
per LUN, from the adapter group records. A cached LUN's line comes from the
record with no line end of its own; a LUN that no adapter caches names the
first adapter that reaches it and ends in a line end, so a blank line
follows. The offline LUN has no online view, so its record names no target.

  $ hostcli -zek list lun
  -lun_number=0 -fc_target=5006-0160-39A0-1122 [Cached on -zek=2000001B32A10C00 ]
  -lun_number=1 -fc_target=5006-0160-39A0-1122   -zek=2000001B32A10C00
  
  -lun_number=31 -fc_target=5006-0160-39A0-1122   -zek=2000001B32A10C00
  
  -lun_number=1 -fc_target=2100-0024-FF3C-5A10 [Cached on -zek=2000001B32A10D00 ]
  -lun_number=2 -fc_target=2100-0024-FF3C-5A10   -zek=2000001B32A10C00
  
  -lun_number=0   -zek=2000001B32A10C00
  
  -lun_number=8 -fc_target=2100-0024-FF3C-5A10   -zek=2000001B32A10C00
  
  -lun_number=0 -is_target=iqn.2004-04.com.simstor:vault.tgt01   -zek=2000001B32A10C00
  
  -lun_number=0 -fc_target=2100-001B-32A1-0C00   -zek=2000001B32A10C00
  

Its result record holds the counted list with no entries: this view is of
LUNs, not of one adapter's paths.

  $ hostcli -zek list lun -quiet -result=all.dat
  $ od -A d -t d4 -w16 all.dat | sed -n '3p'
  0000032           0          12           8           0
  $ wc -c < all.dat
  52

With -zek, one adapter's view, target by target. The adapter's internal
target is not listed.

  $ hostcli -zek list lun -zek=0 -result=one.dat
  [ Device 0 on local host ]
  
  
  
  Target "5006-0160-39A0-1122"
          -lun_number=0 -fc_target=5006-0160-39A0-1122
          -lun_number=1 -fc_target=5006-0160-39A0-1122
          -lun_number=31 -fc_target=5006-0160-39A0-1122
  
  
  Target "5006-0168-39A0-1122"
          -lun_number=0 -fc_target=5006-0168-39A0-1122
          -lun_number=1 -fc_target=5006-0168-39A0-1122
  
  
  Target "2100-0024-FF3C-5A10"
          -lun_number=1 -fc_target=2100-0024-FF3C-5A10
          -lun_number=2 -fc_target=2100-0024-FF3C-5A10
          -lun_number=3 -fc_target=2100-0024-FF3C-5A10
          -lun_number=8 -fc_target=2100-0024-FF3C-5A10
  
  
  Target "iqn.2004-04.com.simstor:vault.tgt01"
          -lun_number=0 -is_target=iqn.2004-04.com.simstor:vault.tgt01
  
  
  

Ten LUN paths of 576 bytes, each behind its 4-byte size of 580: the data is
8 + 10 * 580 bytes, its size field says 5812, and the file is the 36-byte
record head, that data and the closing 4-byte zero.

  $ wc -c < one.dat
  5852
  $ od -A d -t d4 -j 32 -N 8 one.dat
  0000032           0        5812
  0000040
  $ od -A d -t d4 -j 48 -N 4 one.dat
  0000048         580
  0000052
  $ od -A d -t d4 -j 40 -N 8 one.dat
  0000040           8          10
  0000048

The last entry is the iSCSI path: its image ends the data.

  $ od -A d -t d4 -j 5268 -N 4 one.dat
  0005268         580
  0005272

When some targets could not be asked, the reason leads the list, and the
result record carries the partial success code.

  $ hbasim partial zek-prod-a getTargetsAndInitiators 1206
  $ hostcli -zek list lun -zek=0 -result=partial.dat | head -6
  [ Device 0 on local host ]
  
  getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned Object not found
  
  
  Target "5006-0160-39A0-1122"
  $ od -A d -t d4 -j 32 -N 4 partial.dat
  0000032           2
  0000036

An adapter that cannot be selected ends the command with the selection's code.

  $ hostcli -zek list lun -zek=7
  \r             \r*** Object not found (esc)
  [255]

An adapter that sees no targets says so, and its result record has no data.

  $ hbasim reset $TESTDIR/scenarios/lun-plumbing.json > /dev/null
  $ hostcli -zek list lun -zek=2 -result=none.dat
  [ Device 2 on local host ]
  
  No targets found
  
  $ wc -c < none.dat
  40
  $ od -A d -t d4 -j 32 -N 8 none.dat
  0000032           0           0
  0000040

The external cache store LUN (state bit 27) is not listed with -zek; the
other LUNs with adapter-internal state bits are, as list lun hides only that
one. Without -zek every LUN the group records hold is listed.

  $ hostcli -zek list lun -zek=0 | grep -c lun_number=
  5
  $ hostcli -zek list lun -zek=0 | grep -c lun_number=27
  0
  [1]
  $ hostcli -zek list lun | grep -c lun_number=27
  1
