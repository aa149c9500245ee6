list cluster shows every cluster with its members and their roles, and the
pseudo cluster of the adapters outside clusters. An orphan cluster, whose
primary and secondary are both gone, is still listed, and each half-broken
cluster says which role is missing.

  $ hbasim reset $TESTDIR/scenarios/cluster-roles.json >/dev/null
  $ hostcli -zek list cluster -result
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
  
  

The result record holds the last cluster walked, here the pseudo cluster:
the 40 bytes of its KClusterInfo behind a size field of 44. The eight bytes
of the vtable pointer are left out; the two adapter identifiers of a pseudo
cluster are 0.

  $ od -A d -t d4 -N 40 list_cluster.dat | sed -n 3p
  0000032           0          44
  $ od -A d -t x1 -j 48 -N 32 list_cluster.dat
  0000048 00 00 00 00 18 00 00 00 10 00 00 00 00 00 00 00
  0000064 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00
  0000080

-clusterid limits the list to one cluster; the record is still that of the
last cluster walked, shown or not.

  $ hostcli -zek list cluster -clusterid=orphancluster -result=one.dat
  -clusterid="orphancluster"    (Orphan cluster -- no valid primary or secondary adapter available)
      -zek=2000001B32C1E000      <Offline>
      -zek=2000001B32C1F000      <Offline>
  
  
  $ od -A d -t x1 -j 48 -N 16 one.dat
  0000048 00 00 00 00 18 00 00 00 10 00 00 00 00 00 00 00
  0000064

-zek limits it to the cluster of that adapter:

  $ hostcli -zek list cluster -zek=2000001B32C10400
  -clusterid="takeover1"    (Primary adapter not valid, but secondary is available)
      -zek=2000001B32C10300      <Offline>
      -zek=2000001B32C10400      [Cluster Secondary]
  
  

An adapter in no cluster is told so, and the command still succeeds:

  $ hostcli -zek list cluster -zek=2000001B32C1C000 -result=none.dat
  -zek=2000001B32C1C000 is not a member of a cluster
  
  $ od -A d -t d4 none.dat
  0000000          32           0           2         103
  0000016           6           4          16          10
  0000032           0           0
  0000040

An adapter that is in another cluster than the one asked about:

  $ hostcli -zek list cluster -zek=2000001B32C1A000 -clusterid=halfcluster1
  -zek=2000001B32C1A000 is not a member of the -clusterid=halfcluster1

An unknown cluster, and bad cluster ids:

  $ hostcli -zek list cluster -clusterid=nosuchcluster
  \r             \r*** ZEKCLI_PARSE_FAIL -- No cluster found for -clusterid=nosuchcluster (esc)
  [52]
  $ hostcli -zek list cluster -clusterid=12345678901234567
  \r             \r*** ZEKCLI_PARSE_FAIL -- Maximum cluster ID size is 16 bytes (esc)
  [52]

With no adapters at all there are no clusters:

  $ hbasim reset $TESTDIR/scenarios/adapter-none.json >/dev/null
  $ hostcli -zek list cluster
  No Clusters found
