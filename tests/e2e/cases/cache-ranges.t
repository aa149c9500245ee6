Locking, unlocking and invalidating ranges of logical blocks of one cached
LUN. Lock and unlock report start and size; invalidate reports start and
end, as the adapter takes an end.

LUN spa:0 starts with two locked ranges.

  $ hostcli -zek lock cache -zek=0 -lun_start_lba=100 -lun_size_lba=50 -fc_target=5006016039A01122 -lun_number=0
  [ Device 0 on local host ]
  
  Successfully locked cache for LBA range 100 to 50, -fc_target=5006-0160-39A0-1122 -lun_number=0
  
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep -- -lun_start_lba
          -lun_start_lba=0 -lun_size_lba=2048
          -lun_start_lba=1048576 -lun_size_lba=8192
          -lun_start_lba=100 -lun_size_lba=50
  $ hostcli -zek unlock cache -zek=0 -lun_start_lba=100 -lun_size_lba=50 -fc_target=5006016039A01122 -lun_number=0
  [ Device 0 on local host ]
  
  Successfully unlocked cache for LBA range 100 to 50, -fc_target=5006-0160-39A0-1122 -lun_number=0
  
  $ hostcli -zek show lun -zek=0 -fc_target=5006016039A01122 -lun_number=0 -vpgindex=1 | grep -- -lun_start_lba
          -lun_start_lba=0 -lun_size_lba=2048
          -lun_start_lba=1048576 -lun_size_lba=8192

A range that is not locked cannot be unlocked; the adapter's refusal is
returned with no words of the command.

  $ hostcli -zek unlock cache -zek=0 -lun_start_lba=100 -lun_size_lba=50 -fc_target=5006016039A01122 -lun_number=0
  \r             \r*** Object not found (esc)
  [255]

The adapter holds at most 16 ranges per LUN.

  $ for i in $(seq 1 14); do hostcli -zek lock cache -zek=0 -lun_start_lba=$((i * 100000)) -lun_size_lba=8 -fc_target=5006016039A01122 -lun_number=0 >/dev/null || echo "lock $i: $?"; done
  $ hostcli -zek lock cache -zek=0 -lun_start_lba=5 -lun_size_lba=1 -fc_target=5006016039A01122 -lun_number=0
  \r             \r*** No more locked ranges can be set for this LUN (at most 16) (esc)
  [255]

Invalidate: with no range, or a range of zeros, the whole LUN.

  $ hostcli -zek invalidate cache -zek=0 -fc_target=5006016039A01122 -lun_number=0
  [ Device 0 on local host ]
  
  Successfully invalidated cache for entire range, -fc_target=5006-0160-39A0-1122 -lun_number=0
  
  $ hostcli -zek invalidate cache -zek=0 -lun_start_lba=0 -lun_size_lba=0 -fc_target=5006016039A01122 -lun_number=0 | sed -n 3p
  Successfully invalidated cache for entire range, -fc_target=5006-0160-39A0-1122 -lun_number=0
  $ hostcli -zek invalidate cache -zek=0 -lun_start_lba=10 -lun_size_lba=20 -fc_target=5006016039A01122 -lun_number=0 | sed -n 3p
  Successfully invalidated cache for LBA range 10 to 30, -fc_target=5006-0160-39A0-1122 -lun_number=0
  $ hostcli -zek invalidate cache -zek=0 -lun_size_lba=20 -fc_target=5006016039A01122 -lun_number=0 | sed -n 3p
  Successfully invalidated cache for LBA range 0 to 20, -fc_target=5006-0160-39A0-1122 -lun_number=0

An iSCSI LUN is named with -is_target.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_back -is_target=iqn.2004-04.com.simstor:vault.tgt01 -lun_number=0 >/dev/null
  $ hostcli -zek lock cache -zek=0 -lun_start_lba=0 -lun_size_lba=64 -is_target=iqn.2004-04.com.simstor:vault.tgt01 -lun_number=0 | sed -n 3p
  Successfully locked cache for LBA range 0 to 64, -is_target=iqn.2004-04.com.simstor:vault.tgt01 -lun_number=0

Numbers out of their limits, a LUN number left out, and a required keyword
left out (which the parser reports, with code 0 and the syntax).

  $ hostcli -zek lock cache -zek=0 -lun_start_lba=-1 -lun_size_lba=8 -fc_target=5006016039A01122 -lun_number=0
  \r             \r*** ZEKCLI_PARSE_FAIL -- -lun_start_lba modifier requires a number in the range 0 to 9223372036854775807 (esc)
  [52]
  $ hostcli -zek invalidate cache -zek=0 -lun_size_lba=-5 -fc_target=5006016039A01122 -lun_number=0 >/dev/null
  [52]
  $ hostcli -zek lock cache -zek=0 -lun_start_lba=0 -lun_size_lba=8 -fc_target=5006016039A01122
  \r             \r*** ZEKCLI_PARSE_FAIL --  LUN number is required for LUN:  " -fc_target=5006-0160-39A0-1122" (esc)
  [52]
  $ hostcli -zek lock cache -zek=0 -lun_size_lba=8 -fc_target=5006016039A01122 -lun_number=0 | head -n 1
  Error:  -lun_start_lba modifier must be specified
