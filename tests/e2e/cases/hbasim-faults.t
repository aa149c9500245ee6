Faults make one operation of one adapter answer with a chosen code, once or
always; a partial fault makes a gathering operation succeed only in part.
Adapters are named by identifier or symbolic name.

  $ hbasim fault zek-prod-a enableCache 1000
  $ hbasim fault 2000001B32A10D00 restart 1006 --always
  $ hbasim partial zek-prod-b getTargetsAndInitiators 1206
  $ hbasim faults
  Faults:
    2000001B32A10C00 enableCache -> 1000, once
    2000001B32A10D00 restart -> 1006, always
    2000001B32A10D00 getTargetsAndInitiators -> 2 (first error 1206), once

Bad requests change nothing.

  $ hbasim fault nosuch enableCache 1000 2>&1
  hbasim: no adapter "nosuch" in the SAN
  Try "hbasim help".
  [2]
  $ hbasim fault zek-prod-a frobnicate 1000 2>&1
  hbasim: unknown operation "frobnicate"
  Try "hbasim help".
  [2]
  $ hbasim fault zek-prod-a enableCache 0 2>&1
  hbasim: "0" is not a positive whole number
  Try "hbasim help".
  [2]
  $ hbasim fault zek-prod-a enableCache 2>&1
  hbasim: fault takes ADAPTER OPERATION CODE [--always]
  Try "hbasim help".
  [2]
  $ hbasim faults | wc -l
  4

Faults are cleared per adapter or all at once.

  $ hbasim clear-faults zek-prod-b
  $ hbasim faults
  Faults:
    2000001B32A10C00 enableCache -> 1000, once
  $ hbasim clear-faults
  $ hbasim faults
  Faults:
    none
