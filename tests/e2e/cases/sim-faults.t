Faults injected with hbasim reach the command line as the adapter's answer.

A gathering operation that succeeds only in part: the command says so.

  $ hbasim partial zek-prod-a getTargetsAndInitiators 1206
  $ hostcli -zek list lun -zek=0 | grep partial
  getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned Object not found

A fault given once answers once; the next request goes through.

  $ hbasim fault zek-prod-a enableCache 1003
  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 | grep -o 'The feature is not supported by this adapter'
  The feature is not supported by this adapter
  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 | grep -c Successfully
  1
  $ hbasim faults
  Faults:
    none

An adapter taken offline cannot be addressed, and scans list it as offline.

  $ hbasim offline adapter zek-dr-site
  $ hostcli -zek show adapter -zek=zek-dr-site | grep -o 'The adapter does not respond (it is offline or restarting)'
  The adapter does not respond (it is offline or restarting)
  $ hostcli -zek list cluster | grep 2000001B32A10E00
      -zek=2000001B32A10E00      <Offline>

A fault whose code is below 1000 is the operation's answer, and what the
operation changed is kept; from 1000 on nothing changes.

  $ hbasim reset >/dev/null
  $ hbasim fault zek-prod-a enableCache 1
  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22
  [ Device 0 on local host ]
  
  \r             \r*** Success, but the adapter must be restarted for the change to take effect (esc)
  [1]
  $ hbasim show | grep -A1 60060160A1B2C3D4E5F6000000000002 | tail -n 1
        cached read/write-through on 2000001B32A10C00
  $ hbasim fault zek-prod-a lockCache 2
  $ hostcli -zek lock cache -zek=0 -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 -lun_start_lba=0 -lun_size_lba=8
  [ Device 0 on local host ]
  
  Successfully locked cache for LBA range 0 to 8, -fc_target=5006-0160-39A0-1122 -lun_number=1
  
  $ hbasim fault zek-prod-a lockCache 1000
  $ hostcli -zek lock cache -zek=0 -lun_number=1 -fc_target=50:06:01:60:39:A0:11:22 -lun_start_lba=100 -lun_size_lba=8
  \r             \r*** General failure (esc)
  [255]
  $ hbasim show | grep -A1 60060160A1B2C3D4E5F6000000000002 | tail -n 1
        cached read/write-through on 2000001B32A10C00, 1 locked ranges
