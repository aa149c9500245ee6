add member is addressed to the cluster's primary and adds -member; the
member is in the cluster for the next process.

  $ hbasim reset $TESTDIR/scenarios/cluster-free.json >/dev/null
  $ hostcli -zek create cluster -zek=0 -clusterid=memberclus1 -secondary=1 >/dev/null
  $ hostcli -zek add member -zek=0 -clusterid=memberclus1 -member=2 -result
  Fibre Channel Adapter Adapter ID          = 2000001B32D1C000, (Local device 2) successfully added to cluster memberclus1
  
  $ od -A d -t d4 add_member.dat | sed -n 3p
  0000032           0           0
  $ hostcli -zek list cluster -clusterid=memberclus1
  -clusterid="memberclus1"   
      -zek=2000001B32D1A000      [Cluster Primary]
      -zek=2000001B32D1B000      [Cluster Secondary]
      -zek=2000001B32D1C000     
  
  

A cluster that does not exist gets its own words:

  $ hostcli -zek add member -zek=0 -clusterid=nocluster1 -member=3
  \r             \r*** Object not found -- Cluster "nocluster1" was not found.  Members can only be added to pre-existing clusters. (esc)
  [255]

remove member asks first. Only the exact word "yes" goes on; "Yes" or no
answer at all leave the member where it is.

  $ echo Yes | hostcli -zek remove member -zek=0 -clusterid=memberclus1 -member=2
  Future access via this adapter to to LUNs cached on other adapters in the cluster may result in corruption of user data.  It is strongly recommended that this adapter be removed either physically or from the FC zone.  Are you sure you want to remove this member from the cluster [yes/no]? (No action taken) 
  [53]

  $ hostcli -zek remove member -zek=0 -clusterid=memberclus1 -member=2 <&-
  Future access via this adapter to to LUNs cached on other adapters in the cluster may result in corruption of user data.  It is strongly recommended that this adapter be removed either physically or from the FC zone.  Are you sure you want to remove this member from the cluster [yes/no]? (No action taken) 
  [53]

  $ hostcli -zek list cluster -clusterid=memberclus1 | grep -c 2000001B32D1C000
  1
  $ echo yes | hostcli -zek remove member -zek=0 -clusterid=memberclus1 -member=2 -result
  Future access via this adapter to to LUNs cached on other adapters in the cluster may result in corruption of user data.  It is strongly recommended that this adapter be removed either physically or from the FC zone.  Are you sure you want to remove this member from the cluster [yes/no]? Fibre Channel Adapter Adapter ID          = 2000001B32D1C000, (Local device 2) successfully removed from cluster memberclus1
  
  $ od -A d -t d4 remove_member.dat | sed -n 3p
  0000032           0           0
  $ hostcli -zek list cluster -clusterid=memberclus1
  -clusterid="memberclus1"   
      -zek=2000001B32D1A000      [Cluster Primary]
      -zek=2000001B32D1B000      [Cluster Secondary]
  
  

-accept_risk skips the question:

  $ hostcli -zek add member -zek=0 -clusterid=memberclus1 -member=3 >/dev/null
  $ hostcli -zek remove member -zek=0 -clusterid=memberclus1 -member=3 -accept_risk </dev/null
  Fibre Channel Adapter Adapter ID          = 2000001B32D1D000, (Local device 3) successfully removed from cluster memberclus1
  
  $ hostcli -zek list cluster -zek=3
  -zek=3 is not a member of a cluster
  

A member that the library does not know, and a cluster id too long:

  $ hostcli -zek add member -zek=0 -clusterid=memberclus1 -member=2000001B32D1FFFF
  \r             \r*** Object not found (esc)
  [255]
  $ hostcli -zek remove member -zek=0 -clusterid=memberclus1xxxxxx -member=1 -accept_risk
  \r             \r*** ZEKCLI_PARSE_FAIL -- Maximum cluster ID size is 16 bytes (esc)
  [52]
