show reservation prints, for each selected LUN path, its keywords and its
persistent reservation. The words say -fc_target= for an iSCSI target too.

  $ hostcli -zek show reservation -zek=0 -fc_target=5006-0160-39A0-1122
  [ Device 0 on local host ]
  
  -lun_number=0 -fc_target=5006-0160-39A0-1122
      Type:  Exclusive Access
      Key:  0x0123456789ABCDEF
  
  -lun_number=1 -fc_target=5006-0160-39A0-1122
      Type:   No reservation held
  
  -lun_number=31 -fc_target=5006-0160-39A0-1122
      Type:   No reservation held
  
  $ hostcli -zek show reservation -zek=0 -is_target=iqn.2004-04.com.simstor:vault.tgt01 -lun_number=0
  [ Device 0 on local host ]
  
  -lun_number=0 -fc_target=iqn.2004-04.com.simstor:vault.tgt01
      Type:   No reservation held
  

The result record holds the counted list header only, with a count of 0
(its code is 2, as the offline LUN could not be asked; see below).

  $ hostcli -zek show reservation -zek=0 -quiet -result=all.dat
  $ wc -c < all.dat
  52
  $ od -A d -t d4 -j 24 -N 24 all.dat
  0000024          31          33           2          12
  0000040           8           0
  0000048

Of the four LUNs of one target, the offline one cannot be asked and gets no
lines; the others are shown and the result code is 2.

  $ hostcli -zek show reservation -zek=0 -fc_target=2100-0024-FF3C-5A10 -result=some.dat | grep -c lun_number=
  3
  $ od -A d -t d4 -j 32 -N 4 some.dat
  0000032           2
  0000036

When every LUN fails, the code is the last failure's, and the command itself
still succeeds.

  $ hostcli -zek show reservation -zek=0 -fc_target=2100-0024-FF3C-5A10 -lun_number=3 -vpgindex=1 -result=none.dat
  [ Device 0 on local host ]
  
  $ od -A d -t d4 -j 32 -N 4 none.dat
  0000032         116
  0000036

Nothing selected: the resolution's words, and the command ends normally.

  $ hostcli -zek show reservation -zek=0 -fc_target=2100-0024-FF3C-5A10 -lun_number=9
  [ Device 0 on local host ]
  
  No LUNs found for  -fc_target=2100-0024-FF3C-5A10 -lun_number=9
  
