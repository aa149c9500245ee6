show adapter without -zek shows each adapter of this host under both of its
names, the instance and the identifier, with its path, its cluster key and
its description. Adapters seen only through the SAN are left out.

  $ hostcli -zek show adapter
  
      -zek=0
      -zek=2000001B32A10C00
          Adapter ID          = 2000001B32A10C00, (Local device 0)
          Cluster Key         = prodcluster
          [Cluster Primary]
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-prod-a
          Serial Number       = ZK00001001
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           sanhost01
          OS version:          5.15.0-91-generic
          OS build date:       #101-Ubuntu SMP Tue Nov 14 13:30:08 UTC 2023
          Machine name:        x86_64
          Domain name:         lab.example
          Driver version:      zek 4.2.1.7
  
  
  
      -zek=1
      -zek=2000001B32A10D00
          Adapter ID          = 2000001B32A10D00, (Local device 1)
          Cluster Key         = prodcluster
          [Cluster Secondary]
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-prod-b
          Serial Number       = ZK00001002
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           sanhost01
          OS version:          5.15.0-91-generic
          OS build date:       #101-Ubuntu SMP Tue Nov 14 13:30:08 UTC 2023
          Machine name:        x86_64
          Domain name:         lab.example
          Driver version:      zek 4.2.1.7
  
  
  

With -zek the adapter scans the SAN from its side and shows itself alone.
An adapter reached through the SAN has only its identifier for a name.

  $ hostcli -zek show adapter -zek=2000001B32A10E00
  
      -zek=2000001B32A10E00
          Adapter ID          = 2000001B32A10E00, (SAN access via local device 0)
          Cluster Key         = 
          (Not part of any cluster)
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-dr-site
          Serial Number       = ZK00001003
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           sanhost01
          OS version:          5.15.0-91-generic
          OS build date:       #101-Ubuntu SMP Tue Nov 14 13:30:08 UTC 2023
          Machine name:        x86_64
          Domain name:         lab.example
          Driver version:      zek 4.2.1.7
  
  
  

The result record carries code 0 and no data:

  $ hostcli -zek show adapter -zek=0 -result -quiet
  $ od -A d -t d4 show_adapter.dat | sed -n 3p
  0000032           0           0

An adapter that the library does not know is refused by the selection:

  $ hostcli -zek show adapter -zek=7
  \r             \r*** Object not found (esc)
  [255]

A host without any adapter says so, and that is not a failure:

  $ hbasim reset $TESTDIR/scenarios/adapter-none.json >/dev/null
  $ hostcli -zek show adapter
  
      *** No ZEK found ***
  
  

An adapter reached through a remote agent carries the agent's address in
both of its names:

  $ hbasim reset >/dev/null
  $ hostcli -zek show adapter -zek=0 -agent=127.0.10.1 | head -5
  
      -zek=0 -agent=127.0.10.1
      -zek=2000001B32B20100 -agent=127.0.10.1
          Adapter ID          = 2000001B32B20100, (Device 0 on remote host 127.0.10.1)
          Cluster Key         = 
