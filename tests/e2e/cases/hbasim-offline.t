Adapters, ports, LUNs and agents go offline and come back.

  $ hbasim offline adapter zek-dr-site
  $ hbasim offline port zek-prod-a 2
  $ hbasim offline lun 600A0B80002A1C3D0000000052B2A002
  $ hbasim offline agent 127.0.10.1
  $ hbasim show | grep -E 'OFFLINE|down'
    agent 127.0.10.1: sanhost02  [agent down]
        ports: FC1 up, FC2 down; drives: 4 (3 in pool); cache pool 800 GiB; log 36 records
    2000001B32A10E00  SAN via device 0 on local host, OFFLINE, "zek-dr-site", no cluster
    2000001B32A10F00  SAN via device 0 on local host, OFFLINE, "zek-spare", no cluster
    600A0B80002A1C3D0000000052B2A002  direct access, 2 TiB, OFFLINE, paths array-b:2
    600A0B80002A1C3D0000000052B2A003  direct access, 10 GiB, OFFLINE, paths array-b:3
  $ hbasim online adapter zek-dr-site
  $ hbasim online port 2000001B32A10C00 2
  $ hbasim online lun 600A0B80002A1C3D0000000052B2A002
  $ hbasim online agent 127.0.10.1
  $ hbasim show | grep -E 'OFFLINE|down'
    2000001B32A10F00  SAN via device 0 on local host, OFFLINE, "zek-spare", no cluster
    600A0B80002A1C3D0000000052B2A003  direct access, 10 GiB, OFFLINE, paths array-b:3

What cannot be found is said so.

  $ hbasim offline port zek-prod-a 3 2>&1
  hbasim: port takes ADAPTER PORT, with PORT from 1 to 2
  Try "hbasim help".
  [2]
  $ hbasim offline lun 1234 2>&1
  hbasim: no LUN with WWULN "1234" in the SAN
  Try "hbasim help".
  [2]
  $ hbasim offline agent 127.0.10.77 2>&1
  hbasim: no remote agent "127.0.10.77" in the SAN
  Try "hbasim help".
  [2]
  $ hbasim offline cable 2>&1
  hbasim: offline takes adapter ADAPTER, port ADAPTER PORT, lun WWULN or agent ADDRESS
  Try "hbasim help".
  [2]
