What the drive and pool commands change is the simulated SAN's: a later
process sees it, hbasim shows and exports it, and an exported SAN read back
is the same SAN.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hbasim show | grep -A1 '^  2000001B32D1A000'
    2000001B32D1A000  device 0 on local host, online, "zek-new", no cluster
        ports: FC1 up; drives: 6 (1 in pool, 2 of another adapter); cache pool 100 GiB; log 0 records
  $ hostcli -zek add drive -zek=0 -drive=5000-C500-D1A0-0001 > /dev/null
  $ hostcli -zek restore drive_config -zek=0 -owner=2000001B32D1DEAD > /dev/null
  $ hostcli -zek set pool -zek=0 -cache=300 > /dev/null
  $ hbasim show | grep -A1 '^  2000001B32D1A000'
    2000001B32D1A000  device 0 on local host, online, "zek-new", no cluster
        ports: FC1 up; drives: 6 (3 in pool); cache pool 300 GiB; log 1 records
  $ hostcli -zek list drive -zek=0 | sed -n '3,7p'
  Configured Drives (3 of 6)
      -drive=5000-C500-D1A0-0000
      -drive=5000-C500-D1A0-0001
      -drive=5000-C500-D1A0-FF00
  
  $ hostcli -zek show pool -zek=0 | grep Configured
      SSD Storage Configured for Cache Pool = 300GB

A drive's owner is written only while it names another adapter; adopted
drives carry none.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hbasim export | grep -c '"owner"'
  2
  $ hostcli -zek restore drive_config -zek=0 -owner=2000001B32D1DEAD > /dev/null
  $ hbasim export | grep -c '"owner"'
  0
  [1]

The round trip: export, reset from the export, export again.

  $ hbasim reset $TESTDIR/scenarios/drive-owners.json > /dev/null
  $ hostcli -zek add drive -zek=0 -drive=5000-C500-D1A0-0001 > /dev/null
  $ hbasim export first.json
  $ hbasim reset first.json > /dev/null
  $ hbasim export second.json
  $ cmp first.json second.json
  $ hostcli -zek list drive -zek=0 | sed -n '3p'
  Configured Drives (2 of 6)

A scenario whose owner is not an adapter identifier is refused.

  $ sed 's/"2000001B32D1DEAD"/"not-hex"/' $TESTDIR/scenarios/drive-owners.json > bad.json
  $ hbasim check bad.json 2>&1 | sed "s#$PWD/##"
  hbasim: bad.json: an adapter id must be up to 16 hexadecimal digits, not "not-hex"
