Purging the cached write data of a LUN that is gone for good. It loses
data, so it asks first, on standard input, and goes on only for "yes".

Every other reply refuses with 53 and changes nothing: the LUN keeps its
write-back mode and its 512 MiB of dirty data.

  $ echo no | hostcli -zek purge cache -zek=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000001
  This command is intended for use in clearing cache for LUNs that are gone forever.  Cached write data for this LUN will be purged from the cache, which means that if the LUN comes back the cached data will be lost and the volume may be corrupted.  Are you sure you want to purge cached write data for this LUN [yes/no]? (No action taken) 
  [53]
  $ echo Yes | hostcli -zek purge cache -zek=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  [53]
  $ echo y | hostcli -zek purge cache -zek=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  [53]
  $ echo 'yes ' | hostcli -zek purge cache -zek=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  [53]
  $ printf '' | hostcli -zek purge cache -zek=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  [53]
  $ printf 'yesyesyesyesyesyesyesyesyesyesyesyes\n' | hostcli -zek purge cache -zek=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 >/dev/null
  [53]
  $ hbasim show | grep -A1 "F6000000000001 "
    60060160A1B2C3D4E5F6000000000001  direct access, 200 GiB, paths array-a-spa:0, array-a-spb:0, reserved
        cached read/write-back on 2000001B32A10C00, mirrored on 2000001B32A10D00, 2 locked ranges, 512 MiB dirty

"yes" starts the purge; the LUN then shows mode Purge_In_Progress, and its
dirty data and locked ranges are gone.

  $ echo yes | hostcli -zek purge cache -zek=0 -lun_wwuln=60060160A1B2C3D4E5F6000000000001 | tail -n 2
  This command is intended for use in clearing cache for LUNs that are gone forever.  Cached write data for this LUN will be purged from the cache, which means that if the LUN comes back the cached data will be lost and the volume may be corrupted.  Are you sure you want to purge cached write data for this LUN [yes/no]? Successfully started purge for LUN LUN 0  1st VP Group  on Target: 5006-0160-39A0-1122
  
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep -E "Mode:|-lun_start_lba|Dirty"
          Mode: Purge_In_Progress (mirrored at adapter 2000001B32A10D00)

The adapter finishes the purge on its own; half a minute later the LUN is
no longer cached.

  $ HBASIM_TIME=1795000040 hostcli -zek flush cache -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | tail -n 2
  LUN 0  1st VP Group  on Target: 5006-0160-39A0-1122 NOT flushed, (SAN Data LUN is not cached)
  

hbasim shows the SAN as it stands at its clock: purging at the time of the
purge, no longer cached half a minute later.

  $ hbasim show | grep -A1 "F6000000000001 "
    60060160A1B2C3D4E5F6000000000001  direct access, 200 GiB, paths array-a-spa:0, array-a-spb:0, reserved
        cached purging on 2000001B32A10C00, mirrored on 2000001B32A10D00
  $ HBASIM_TIME=1795000040 hbasim show | grep -A1 "F6000000000001 "
    60060160A1B2C3D4E5F6000000000001  direct access, 200 GiB, paths array-a-spa:0, array-a-spb:0, reserved
    60060160A1B2C3D4E5F6000000000002  direct access, 100 GiB, paths array-a-spa:1, array-a-spb:1

-accept_risk does not ask.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_back -fc_target=21000024FF3C5A10 -lun_number=2 >/dev/null
  $ hostcli -zek purge cache -zek=0 -accept_risk -fc_target=21000024FF3C5A10 -lun_number=2 </dev/null
  Successfully started purge for LUN LUN 2  1st VP Group  on Target: 2100-0024-FF3C-5A10
  

Exactly one LUN is needed: none named, or none matching, is refused before
any question.

  $ hostcli -zek purge cache -zek=0 </dev/null
  \r             \r*** ZEKCLI_PARSE_FAIL --  LUN number is required for LUN:  "" (esc)
  [52]
  $ hostcli -zek purge cache -zek=0 -fc_target=5006016039A01122 -lun_number=9 </dev/null
  \r             \r*** ZEKCLI_PARSE_FAIL --  LUN not found for " -fc_target=5006-0160-39A0-1122 -lun_number=9" (esc)
  [52]

An adapter that is not there.

  $ hostcli -zek purge cache -zek=2000001B32A10F00 -accept_risk -fc_target=21000024FF3C5A10 -lun_number=2 </dev/null >/dev/null
  [255]
