Large synthetic SANs for benchmarks: 16 adapters with 4096 LUN paths.

  $ hbasim generate 16 4096 | sed "s#$HOME#HOME#"
  Generated 16 adapters, 16 targets, 3277 LUNs with 4096 paths into HOME/.hbasim/san.json
  $ hbasim show | grep -c '^  2000001B33'
  16
  $ hbasim generate 2 10 --targets 3 --output small.json
  Generated 2 adapters, 3 targets, 8 LUNs with 10 paths into small.json
  $ hbasim check small.json
  small.json: a valid scenario with 2 adapters and 8 LUNs
  $ hbasim generate 0 10 2>&1
  hbasim: generate takes ADAPTERS (1 to 64) and LUN_PATHS (1 to 1000000)
  Try "hbasim help".
  [2]
  $ hbasim generate 2 10 --targets 2>&1
  hbasim: --targets needs a value
  Try "hbasim help".
  [2]

Each adapter has four SSDs unless --drives says otherwise, all but the last
in its cache pool.

  $ hbasim generate 2 10 --drives 64 > /dev/null
  $ hbasim show | grep -m1 drives: | sed 's/.*drives/drives/'
  drives: 64 (63 in pool); cache pool 1 TiB; log 20 records
  $ hbasim generate 2 10 --drives 0 > /dev/null
  $ hbasim show | grep -m1 drives: | sed 's/.*drives/drives/'
  drives: 0 (0 in pool); cache pool 0 MiB; log 20 records
  $ hbasim generate 2 10 --drives 65 2>&1
  hbasim: --drives takes a number from 0 to 64
  Try "hbasim help".
  [2]
  $ hbasim generate 2 10 --drives 2>&1
  hbasim: --drives needs a value
  Try "hbasim help".
  [2]
