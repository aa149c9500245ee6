set adapter -name gives the adapter a new symbolic name, which the next
process sees. It shows no banner.

  $ hostcli -zek set adapter -zek=1 -name=zek-renamed
  Adapter symbolic name set successfully
  $ hostcli -zek show adapter -zek=1 | grep 'Symbolic Name'
          Symbolic Name       = zek-renamed

Without -name nothing is changed and nothing is shown:

  $ hostcli -zek set adapter -zek=1
  $ hostcli -zek show adapter -zek=1 | grep 'Symbolic Name'
          Symbolic Name       = zek-renamed

The result record carries the library's code, 0 here:

  $ hostcli -zek set adapter -zek=0 -name=zek-again -result -quiet
  $ od -A d -t d4 set_adapter.dat | sed -n 3p
  0000032           0           0

A refusal of the library is passed on:

  $ hbasim fault 2000001B32A10C00 setSymbolicName 1000 >/dev/null
  $ hostcli -zek set adapter -zek=0 -name=zek-third
  \r             \r*** General failure (esc)
  [255]
  $ hostcli -zek show adapter -zek=0 | grep 'Symbolic Name'
          Symbolic Name       = zek-again

An adapter that does not answer is reported before the name is touched:

  $ hbasim fault 2000001B32A10D00 getAdapterInfo 1000 >/dev/null
  $ hostcli -zek set adapter -zek=1 -name=zek-never
  \r             \r*** General failure (esc)
  [255]
  $ hostcli -zek show adapter -zek=1 | grep 'Symbolic Name'
          Symbolic Name       = zek-renamed
