The host hands the tool every vector that starts with "-pr zek" (in any
case) or carries the keyword -zek anywhere. A leading selector is taken out
before the command is parsed.

  $ hostcli -pr ZEK version cli -name
  2.103.6.4.0.0 (no-eol)
  $ hostcli -pr zek version cli -name
  2.103.6.4.0.0 (no-eol)
  $ hostcli -ZEK version cli -name
  2.103.6.4.0.0 (no-eol)

A -zek with a value behind the command is an ordinary keyword of the line.

  $ hostcli version cli -name -zek=0
  2.103.6.4.0.0 (no-eol)
