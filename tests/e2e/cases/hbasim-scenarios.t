The SAN can be exported as a scenario, checked, changed by hand and loaded
again. Fields that hold their default value are left out of the file.

  $ hbasim export > mine.json
  $ head -2 mine.json
  {
   "adapters": [
  $ hbasim check mine.json
  mine.json: a valid scenario with 5 adapters and 9 LUNs
  $ sed -i 's/"zek-prod-a"/"renamed-a"/' mine.json
  $ hbasim reset mine.json | sed "s#$HOME#HOME#"
  State reset to "mine.json" in HOME/.hbasim/san.json
  $ hbasim show | grep renamed
    2000001B32A10C00  device 0 on local host, online, "renamed-a", cluster prodcluster (primary)
  $ hbasim export out.json
  $ cmp mine.json out.json && echo same
  same

Files that are not usable scenarios are refused with the reason, and the
state stays as it was.

  $ printf '{ "format": "hbasim-scenario", "version": 2 }\n' > newer.json
  $ hbasim reset newer.json 2>&1
  hbasim: newer.json: format version 2 is not supported (this simulator reads version 1); it may come from a newer hbasim
  [1]
  $ printf '{ "format": "hbasim-scenario", "version": 1, "hosts": [ { "nodeNmae": "x" } ] }\n' > typo.json
  $ hbasim check typo.json 2>&1
  hbasim: typo.json: unknown field "/hosts/0/nodeNmae"
  [1]
  $ printf '{ "format": "hbasim-scenario", "version": 1, ' > cut.json
  $ hbasim check cut.json 2>&1
  hbasim: cut.json: parse error at line 1, column 46: syntax error while parsing object key - unexpected end of input; expected string literal
  [1]
  $ printf '{ "version": 1 }' > other.json
  $ hbasim check other.json 2>&1
  hbasim: other.json: not an hbasim scenario (the field "format" must be "hbasim-scenario")
  [1]
  $ hbasim check missing.json 2>&1
  hbasim: cannot open "missing.json": No such file or directory
  [1]
  $ hbasim show | grep renamed | wc -l
  1
