Taking a LUN out of the cache of the adapter named by -zek.

LUN array-b:1 is cached on device 1, a peer of device 0. Device 0 refuses
and names the caching adapter the way -zek takes it; the LUN stays cached.

  $ hostcli -zek disable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=1
  \r             \r*** The LUN is cached on another adapter -- This LUN is currently cached on another adapter, ( -zek=2000001B32A10D00 ). (esc)
  Please reissue the command to the adapter that is caching this LUN.
  
  [185]
  $ hbasim show | grep -A1 "52B2A001 "
    600A0B80002A1C3D0000000052B2A001  direct access, 500 GiB, paths array-b:1
        cached read/write-through on 2000001B32A10D00
  $ hostcli -zek disable cache -zek=2000001B32A10D00 -fc_target=21000024FF3C5A10 -lun_number=1
  [ Device 1 on local host ]
  
  Successfully disabled caching for LUN   -fc_target=2100-0024-FF3C-5A10 -lun_number=1
  
  $ hbasim show | grep -A1 "52B2A001 " | grep -c cached
  0
  [1]

A LUN that is not cached, LUNs that are not SAN data LUNs, a LUN the
adapter does not see (looked up directly when fully named, searched for
otherwise: the search's "No LUNs found" note is cleared by the keyword
lookups that follow it).

  $ hostcli -zek disable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2
  \r             \r*** The LUN is not cached (esc)
  [255]
  $ hostcli -zek disable cache -zek=0 -fc_target=5006016039A01122 -lun_number=31
  \r             \r*** The LUN is not a SAN data LUN (esc)
  [255]
  $ hostcli -zek disable cache -zek=0 -fc_target=2100001B32A10C00 -lun_number=0
  \r             \r*** The LUN is not a SAN data LUN (esc)
  [255]
  $ hostcli -zek disable cache -zek=0 -fc_target=5006016039A01122 -lun_number=9 -vpgindex=1
  \r             \r*** Object not found -- LUN not found (esc)
  [255]
  $ hostcli -zek disable cache -zek=0 -fc_target=5006016039A01122 -lun_number=9
  \r             \r*** ZEKCLI_PARSE_FAIL --  One LUN must be specified. (esc)
  [52]

A LUN that went away while cached answers 116. Named by target and number
there is nothing else to try; named by WWULN the adapter is asked again by
that name. The line then says -is_target, as no target keyword was given.

  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -fc_target=21000024FF3C5A10 -lun_number=2 >/dev/null
  $ hbasim offline lun 600A0B80002A1C3D0000000052B2A002 >/dev/null
  $ hostcli -zek disable cache -zek=0 -fc_target=21000024FF3C5A10 -lun_number=2
  \r             \r*** The LUN is no longer available (it is offline or gone) (esc)
  [116]
  $ hbasim show | grep -A1 "52B2A002 " | grep -c cached
  1
  $ hostcli -zek disable cache -zek=0 -lun_wwuln=600A0B80002A1C3D0000000052B2A002
  [ Device 0 on local host ]
  
  Successfully disabled caching for LUN   -is_target=2100-0024-FF3C-5A10 -lun_number=2
  
  $ hbasim show | grep -A1 "52B2A002 " | grep -c cached
  0
  [1]

The WWULN may also be given as the tool shows it, in groups of four digits;
the adapter (and hbasim) finds the LUN by either form.

  $ hbasim online lun 600a-0b80-002a-1c3d-0000-0000-52b2-a002
  $ hostcli -zek enable cache -zek=0 -mode=read_write_through -fc_target=21000024FF3C5A10 -lun_number=2 >/dev/null
  $ hbasim offline lun 600A-0B80-002A-1C3D-0000-0000-52B2-A002
  $ hostcli -zek disable cache -zek=0 -lun_wwuln=600A-0B80-002A-1C3D-0000-0000-52B2-A002
  [ Device 0 on local host ]
  
  Successfully disabled caching for LUN   -is_target=2100-0024-FF3C-5A10 -lun_number=2
  
  $ hbasim show | grep -A1 "52B2A002 " | grep -c cached
  0
  [1]

Through a cluster: the request goes to the cluster's primary, which
releases the LUN wherever the cluster caches it, and the LUN must be named
by WWULN (the message spells the keyword its own way).

  $ hbasim reset >/dev/null
  $ hostcli -zek disable cache -zek=1 -clusterid=prodcluster -fc_target=21000024FF3C5A10 -lun_number=1
  \r             \r*** ZEKCLI_PARSE_FAIL -- When -cluster_id=.. is specified, -lun_wwuln=... must be used to specify the LUN for which cache is to be disabled. (esc)
  [52]
  $ hostcli -zek disable cache -zek=1 -clusterid=prodcluster -lun_wwuln=600A0B80002A1C3D0000000052B2A001
  [ Device 1 on local host ]
  
  Successfully disabled caching for LUN   -is_target=2100-0024-FF3C-5A10 -lun_number=1
  
  $ hbasim show | grep -A1 "52B2A001 " | grep -c cached
  0
  [1]

A cluster the scan does not know has nothing to release: success, and
nothing is touched.

  $ hostcli -zek disable cache -zek=0 -clusterid=nosuchcluster -lun_wwuln=60060160A1B2C3D4E5F6000000000001
  [ Device 0 on local host ]
  
  Successfully disabled caching for LUN   -is_target=5006-0160-39A0-1122 -lun_number=0
  
  $ hbasim show | grep -A1 "0000000001 " | grep -c "cached read/write-back"
  1
  $ hostcli -zek disable cache -zek=0 -clusterid=12345678901234567 -lun_wwuln=60060160A1B2C3D4E5F6000000000001
  \r             \r*** ZEKCLI_PARSE_FAIL -- Maximum cluster ID size is 16 bytes (esc)
  [52]

A cluster whose primary is reached only through the SAN: the request still
goes to that primary, which releases the LUN it caches.

  $ hbasim reset $TESTDIR/scenarios/cache-san-primary.json >/dev/null
  $ hostcli -zek disable cache -zek=0 -lun_wwuln=600A0B80002A1C3D00000000D0D0D001 >/dev/null
  [185]
  $ hostcli -zek disable cache -zek=0 -clusterid=corecluster -lun_wwuln=600A0B80002A1C3D00000000D0D0D001
  [ Device 0 on local host ]
  
  Successfully disabled caching for LUN   -is_target=2100-0024-FF3C-8800 -lun_number=1
  
  $ hbasim show | grep -c "cached read"
  0
  [1]
