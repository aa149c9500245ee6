The first use of the simulator makes the default SAN in the state file,
which hbasim shows as a summary.

  $ hbasim show
  SAN "default"
  Hosts:
    local host: sanhost01
    agent 127.0.10.1: sanhost02
  Adapters:
    2000001B32A10C00  device 0 on local host, online, "zek-prod-a", cluster prodcluster (primary)
        ports: FC1 up, FC2 up; drives: 4 (3 in pool); cache pool 800 GiB; log 36 records
    2000001B32A10D00  device 1 on local host, online, "zek-prod-b", cluster prodcluster (secondary)
        ports: FC1 up, FC2 up; drives: 4 (2 in pool); cache pool 600 GiB; log 24 records
    2000001B32A10E00  SAN via device 0 on local host, online, "zek-dr-site", no cluster
        ports: FC1 up, FC2 up; drives: 2 (2 in pool); cache pool 700 GiB; log 12 records
    2000001B32A10F00  SAN via device 0 on local host, OFFLINE, "zek-spare", no cluster
        ports: FC1 up, FC2 up; drives: 0 (0 in pool); cache pool 0 MiB; log 0 records
    2000001B32B20100  device 0 on agent 127.0.10.1, online, "zek-remote", no cluster
        ports: FC1 up, FC2 up; drives: 2 (1 in pool); cache pool 300 GiB; log 12 records
  Clusters:
    prodcluster: primary 2000001B32A10C00, secondary 2000001B32A10D00, 2 members
  Targets:
    array-a-spa  FC 5006016039A01122, port 1
    array-a-spb  FC 5006016839A01122, port 2
    array-b  FC 21000024FF3C5A10, port 1+2
    iscsi-vault  iSCSI iqn.2004-04.com.simstor:vault.tgt01, port 1
    internal-dev0  FC 2100001B32A10C00, port 1+2, internal
  LUNs:
    60060160A1B2C3D4E5F6000000000001  direct access, 200 GiB, paths array-a-spa:0, array-a-spb:0, reserved
        cached read/write-back on 2000001B32A10C00, mirrored on 2000001B32A10D00, 2 locked ranges, 512 MiB dirty
    60060160A1B2C3D4E5F6000000000002  direct access, 100 GiB, paths array-a-spa:1, array-a-spb:1
    60060160A1B2C3D4E5F60000000000FF  controller, 0 MiB, paths array-a-spa:31
    600A0B80002A1C3D0000000052B2A001  direct access, 500 GiB, paths array-b:1
        cached read/write-through on 2000001B32A10D00
    600A0B80002A1C3D0000000052B2A002  direct access, 2 TiB, paths array-b:2
    600A0B80002A1C3D0000000052B2A003  direct access, 10 GiB, OFFLINE, paths array-b:3
    "vault.example:lun-archive-07"  direct access, 750 GiB, paths iscsi-vault:0
    600A0B80002A1C3D0000000052B2A0F0  sequential access, 0 MiB, paths array-b:8
    2000001B32A10C000000000000000001  direct access, 50 GiB, paths internal-dev0:0, data LUN "scratch" of 2000001B32A10C00
  Faults:
    none
  $ ls .hbasim
  san.json
  san.json.lock

A state file that was damaged by hand is reported, named, and left alone.

  $ printf '{ "format": "hbasim-scenario", "version": 1, "adapters": [ {"device": "one"} ] }\n' > .hbasim/san.json
  $ hbasim show 2>&1 | sed "s#$HOME#HOME#"
  hbasim: simulator state file "HOME/.hbasim/san.json": (/adapters/0/device) type must be number, but is string
  $ hbasim show >/dev/null 2>&1
  [1]
  $ cat .hbasim/san.json
  { "format": "hbasim-scenario", "version": 1, "adapters": [ {"device": "one"} ] }
  $ hbasim reset | sed "s#$HOME#HOME#"
  State reset to the default SAN in HOME/.hbasim/san.json
  $ hbasim show | head -1
  SAN "default"
