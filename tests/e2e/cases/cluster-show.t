show cluster shows each real cluster with its role words, and each member
with its path and its description. Then, when neither -zek nor -clusterid
narrows the report, the adapters outside clusters, an offline one as
"(OFFLINE)", and the summary of every cluster as list cluster gives it. The
role words differ from those of list cluster on purpose.

  $ hbasim reset $TESTDIR/scenarios/cluster-roles.json >/dev/null
  $ hostcli -zek show cluster -result
  -clusterid="goodcluster1"
    -zek=2000001B32C1A000
          Adapter ID          = 2000001B32C1A000, (Local device 0)
          [Cluster Primary]
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-a
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
    -zek=2000001B32C1B000
          Adapter ID          = 2000001B32C1B000, (Local device 1)
          [Cluster Secondary]
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-b
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
  
  -clusterid="orphancluster"   (Orphan cluster -- no valid primary or secondary adapter)
    -zek=2000001B32C1E000
          Adapter ID          = 2000001B32C1E000, (Local device 4)
          *** OFFLINE ***        Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
    -zek=2000001B32C1F000
          Adapter ID          = 2000001B32C1F000, (Local device 5)
          *** OFFLINE ***        Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
  
  -clusterid="halfcluster1"   (Secondary adapter is not valid)
    -zek=2000001B32C10100
          Adapter ID          = 2000001B32C10100, (Local device 6)
          [Cluster Primary]
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-g
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
    -zek=2000001B32C10200
          Adapter ID          = 2000001B32C10200, (Local device 7)
          *** OFFLINE ***        Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
  
  -clusterid="takeover1"   (Secondary adapter is valid, but primary is not)
    -zek=2000001B32C10300
          Adapter ID          = 2000001B32C10300, (Local device 8)
          *** OFFLINE ***        Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
    -zek=2000001B32C10400
          Adapter ID          = 2000001B32C10400, (Local device 9)
          [Cluster Secondary]
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-j
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
  
  
  The following adapters are not members of any cluster:
      -zek=2000001B32C1C000
          Adapter ID          = 2000001B32C1C000, (Local device 2)
          (Not part of any cluster)
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-c
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
      -zek=2000001B32C1D000
          (OFFLINE)
  
  
  -clusterid="goodcluster1"   
      -zek=2000001B32C1A000      [Cluster Primary]
      -zek=2000001B32C1B000      [Cluster Secondary]
  
  -clusterid="orphancluster"    (Orphan cluster -- no valid primary or secondary adapter available)
      -zek=2000001B32C1E000      <Offline>
      -zek=2000001B32C1F000      <Offline>
  
  -clusterid="halfcluster1"    (Secondary adapter is not valid)
      -zek=2000001B32C10100      [Cluster Primary]
      -zek=2000001B32C10200      <Offline>
  
  -clusterid="takeover1"    (Primary adapter not valid, but secondary is available)
      -zek=2000001B32C10300      <Offline>
      -zek=2000001B32C10400      [Cluster Secondary]
  
  -clusterid=""   (Adapters that are not a member of any cluster)
  
      -zek=2000001B32C1C000     
      -zek=2000001B32C1D000      <Offline>
  
  

The result record is the description of the last adapter shown, zek-c
outside the clusters: 1496 bytes behind a size field of 1500.

  $ od -A d -t d4 -j 32 -N 8 show_cluster.dat
  0000032           0        1500
  0000040
  $ tail -c +41 show_cluster.dat | head -c 1496 | strings | grep '^zek-'
  zek-c
  $ stat -c %s show_cluster.dat
  1540

-zek narrows the report to the adapter's own cluster and never shows the
adapters outside clusters:

  $ hostcli -zek show cluster -zek=2000001B32C10100
  -clusterid="halfcluster1"   (Secondary adapter is not valid)
    -zek=2000001B32C10100
          Adapter ID          = 2000001B32C10100, (Local device 6)
          [Cluster Primary]
          Product Name        = ZEK-8200 Caching HBA
          Symbolic Name       = zek-g
          SW Version          = 4.2.1.7
          u-boot BIOS Version = 2.1.0
          HW Version          = B2
          BIOS Version        = 3.10
          EFI Version         = 1.22
          Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
    -zek=2000001B32C10200
          Adapter ID          = 2000001B32C10200, (Local device 7)
          *** OFFLINE ***        Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
  
  

-clusterid does the same for one cluster. The offline members of an orphan
cluster are still described from what the library holds of them, and the
last of them is the result record.

  $ hostcli -zek show cluster -clusterid=orphancluster -result=orphan.dat
  -clusterid="orphancluster"   (Orphan cluster -- no valid primary or secondary adapter)
    -zek=2000001B32C1E000
          Adapter ID          = 2000001B32C1E000, (Local device 4)
          *** OFFLINE ***        Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
    -zek=2000001B32C1F000
          Adapter ID          = 2000001B32C1F000, (Local device 5)
          *** OFFLINE ***        Linux Host
          System name:         Linux
          Node name:           rolehost
          OS version:          
          OS build date:       
          Machine name:        x86_64
          Domain name:         (none)
          Driver version:      
  
  
  
  $ od -A d -t d4 -j 32 -N 8 orphan.dat
  0000032           0        1500
  0000040
  $ tail -c +41 orphan.dat | head -c 1496 | strings | grep '^zek-'
  zek-f

An adapter outside clusters, and an unknown cluster:

  $ hostcli -zek show cluster -zek=2000001B32C1C000
  -zek=2000001B32C1C000 is not a member of a cluster
  
  $ hostcli -zek show cluster -clusterid=nosuchcluster
  \r             \r*** ZEKCLI_PARSE_FAIL -- No cluster found for -clusterid=nosuchcluster (esc)
  [52]

With no adapters at all there are no clusters:

  $ hbasim reset $TESTDIR/scenarios/adapter-none.json >/dev/null
  $ hostcli -zek show cluster
  No Clusters found
