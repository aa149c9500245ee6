Caching a LUN through one adapter changes what every later process sees:
the adapter that caches it, its peer, and hbasim.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 | tail -2
  Successfully enabled caching for LUN  -fc_target=5006-0160-39A0-1122 -lun_number=1
  
  $ hbasim show | grep -A1 '^  60060160A1B2C3D4E5F6000000000002'
    60060160A1B2C3D4E5F6000000000002  direct access, 100 GiB, paths array-a-spa:1, array-a-spb:1
        cached read/write-through on 2000001B32A10C00
  $ hostcli -zek show lun -zek=1 -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 | grep 'cached on remote'
      (LUN is cached on remote adapter 2000001B32A10C00)

The same request again is refused by the adapter, and so is a request to
the peer that does not cache it.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 | grep -o 'The LUN is already cached'
  The LUN is already cached
  $ hostcli -zek disable cache -zek=1 -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 | grep -o 'cached on another adapter, ( -zek=2000001B32A10C00 )'
  cached on another adapter, ( -zek=2000001B32A10C00 )

A LUN that has gone offline answers 116; disabling it by its WWULN still
works.

  $ hbasim offline lun 60060160A1B2C3D4E5F6000000000002
  $ hostcli -zek disable cache -zek=0 -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 | grep -o 'The LUN is no longer available (it is offline or gone)'
  The LUN is no longer available (it is offline or gone)
  $ hostcli -zek disable cache -zek=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000002 -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 | tail -2
  Successfully disabled caching for LUN   -fc_target=5006-0160-39A0-1122 -lun_number=1
  
  $ hbasim show | grep -A1 '^  60060160A1B2C3D4E5F6000000000002'
    60060160A1B2C3D4E5F6000000000002  direct access, 100 GiB, OFFLINE, paths array-a-spa:1, array-a-spb:1
    60060160A1B2C3D4E5F60000000000FF  controller, 0 MiB, paths array-a-spa:31
