create cluster makes the addressed adapter the primary of a new cluster and
-secondary its secondary. The cluster is there for the next process.

  $ hbasim reset $TESTDIR/scenarios/cluster-free.json >/dev/null
  $ hostcli -zek create cluster -zek=2000001B32D1A000 -clusterid=drcluster01 -secondary=2000001B32D1B000 -result
  Cluster successfully created.
  
  $ od -A d -t d4 create_cluster.dat | sed -n 3p
  0000032           0           0
  $ hostcli -zek list cluster -clusterid=drcluster01
  -clusterid="drcluster01"   
      -zek=2000001B32D1A000      [Cluster Primary]
      -zek=2000001B32D1B000      [Cluster Secondary]
  
  

-host_cluster_type takes an abbreviation of its words; a word it does not
know is refused before the adapter is asked. The word list's message keeps
its own line feed, so an empty line follows it.

  $ hostcli -zek destroy cluster -zek=2000001B32D1A000 -clusterid=drcluster01
  cluster drcluster01 successfully destroyed
  
  $ hostcli -zek create cluster -zek=2000001B32D1A000 -clusterid=drcluster02 -secondary=2000001B32D1B000 -host_cluster_type=vmw
  Cluster successfully created.
  
  $ hbasim export | grep -B1 '"id": "drcluster02"' | grep -o '"hostClusterType": [0-9]*'
  "hostClusterType": 3
  $ hostcli -zek create cluster -zek=2000001B32D1A000 -clusterid=drcluster03 -secondary=2000001B32D1B000 -host_cluster_type=solaris
  \r             \r*** ZEKCLI_PARSE_FAIL -- "solaris" is not recognized (esc)
  
  [52]
  $ hostcli -zek list cluster -clusterid=drcluster03
  \r             \r*** ZEKCLI_PARSE_FAIL -- No cluster found for -clusterid=drcluster03 (esc)
  [52]

destroy cluster removes it, and it is gone for the next process:

  $ hostcli -zek destroy cluster -zek=2000001B32D1A000 -clusterid=drcluster02 -result
  cluster drcluster02 successfully destroyed
  
  $ od -A d -t d4 destroy_cluster.dat | sed -n 3p
  0000032           0           0
  $ hostcli -zek list cluster -clusterid=drcluster02
  \r             \r*** ZEKCLI_PARSE_FAIL -- No cluster found for -clusterid=drcluster02 (esc)
  [52]

A cluster id of more than 16 characters is refused here; a short one goes
to the adapter, which decides on it (this one takes it).

  $ hostcli -zek create cluster -zek=2000001B32D1A000 -clusterid=abcdefghijklmnopq -secondary=2000001B32D1B000
  \r             \r*** ZEKCLI_PARSE_FAIL -- Maximum cluster ID size is 16 bytes (esc)
  [52]
  $ hostcli -zek create cluster -zek=2000001B32D1A000 -clusterid=abc -secondary=2000001B32D1B000
  Cluster successfully created.
  

An adapter already in a cluster cannot found another one; the adapter says
so:

  $ hostcli -zek create cluster -zek=2000001B32D1C000 -clusterid=drcluster05 -secondary=2000001B32D1D000
  Cluster successfully created.
  
  $ hostcli -zek create cluster -zek=2000001B32D1A000 -clusterid=second01 -secondary=2000001B32D1C000
  \r             \r*** The adapter is already a member of a cluster (esc)
  [255]

A secondary that the library does not know:

  $ hostcli -zek create cluster -zek=2000001B32D1A000 -clusterid=drcluster04 -secondary=2000001B32D1FFFF
  \r             \r*** Object not found (esc)
  [255]
