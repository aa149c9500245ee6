list adapter lists the clusters that the host's adapters and those seen in
the SAN belong to, with the pseudo cluster of the adapters outside every
cluster. It shows no banner.

  $ hostcli -zek list adapter
  -clusterid="prodcluster"   
      -zek=2000001B32A10C00      [Cluster Primary]
      -zek=2000001B32A10D00      [Cluster Secondary]
  
  -clusterid=""   (Adapters that are not a member of any cluster)
  
      -zek=2000001B32A10E00     
      -zek=2000001B32A10F00      <Offline>
  
  

With -zek the named adapter scans the SAN from its side; its own cluster is
already in the list, so the list stays the same.

  $ hostcli -zek list adapter -zek=1
  -clusterid="prodcluster"   
      -zek=2000001B32A10C00      [Cluster Primary]
      -zek=2000001B32A10D00      [Cluster Secondary]
  
  -clusterid=""   (Adapters that are not a member of any cluster)
  
      -zek=2000001B32A10E00     
      -zek=2000001B32A10F00      <Offline>
  
  

An adapter in no cluster cannot be asked for its cluster:

  $ hostcli -zek list adapter -zek=2000001B32A10E00
  \r             \r*** ZEKCLI_PARSE_FAIL -- -zek=2000001B32A10E00 is not a member of a cluster (esc)
  [52]

The result record carries code 0 and no data:

  $ hostcli -zek list adapter -result -quiet
  $ od -A d -t d4 list_adapter.dat | sed -n 3p
  0000032           0           0

A host without adapters finds no clusters, and that is not a failure:

  $ hbasim reset $TESTDIR/scenarios/adapter-none.json >/dev/null
  $ hostcli -zek list adapter
  
  No Clusters found
