A script may run other scripts, but not one that is already running in the
chain of scripts (the same file, by device and inode, under whatever name),
and not deeper than 32 levels. Such a line is not opened: it fails with code
52 like a line that does not parse, and the script that holds it stops or
goes on as -continue_on_error says.

A script that runs itself:

  $ echo 'execute script -file=self.txt' > self.txt
  $ hostcli -zek execute script -file=self.txt
  \r             \r1: \r             \r*** ZEKCLI_PARSE_FAIL -- Script self.txt is already running; scripts may not execute themselves. (esc)
  ??? [ local host ]
  
  Script "self.txt" failed to complete
  \r              (esc)
      IP = ******
      1 commands attempted, 0 successful, 1 failed
          "Parse Error"
              ZEKCLI_PARSE_FAIL at line 1
  
  
  
  
  \r             \r*** ZEKCLI_PARSE_FAIL -- Script self.txt is already running; scripts may not execute themselves. (esc)
  [52]

Under another name (a link) it is the same file. The refused line names the
script as that line gives it; each script above it fails in turn:

  $ ln -s self.txt alias.txt
  $ echo 'execute script -file=alias.txt' > via-link.txt
  $ echo 'execute script -file=via-link.txt' > self.txt
  $ hostcli -zek execute script -file=self.txt -show_only_error | grep -c 'Script alias.txt is already running'
  3

Two scripts that run each other. -continue_on_error belongs to the command
that has it: b.txt, run by a line of a.txt, stops at its refused line, and
a.txt goes on with its own next line.

  $ printf '%s\n' 'execute script -file=b.txt' 'version cli -name' > a.txt
  $ printf '%s\n' 'execute script -file=a.txt' 'version cli -name' > b.txt
  $ hostcli -zek execute script -file=a.txt -quiet
  [52]
  $ hostcli -zek execute script -file=a.txt -continue_on_error > run.txt
  $ grep -c 'Script a.txt is already running' run.txt
  2
  $ grep '^Script' run.txt
  Script "b.txt" failed to complete
  Script "a.txt" completed OK
  $ grep -c '2.103.6.4.0.0' run.txt
  1

A chain of 10,000 different scripts, each running the next, stops at the
33rd: that line fails, and with it the line of every script above it. The
33rd is not even opened: here it is a folder, which opening would refuse with
another message.

  $ for i in $(seq 1 10000); do echo "execute script -file=chain$((i + 1)).txt" > chain$i.txt; done
  $ rm chain33.txt && mkdir chain33.txt
  $ hostcli -zek execute script -file=chain1.txt -quiet
  [52]
  $ hostcli -zek execute script -file=chain1.txt > run.txt
  [52]
  $ grep -c 'Scripts are nested too deeply (more than 32 levels).' run.txt
  33
  $ grep '^Script' run.txt | sed -n '1p;$p'
  Script "chain32.txt" failed to complete
  Script "chain1.txt" failed to complete
  $ grep -c '^Script' run.txt
  32
