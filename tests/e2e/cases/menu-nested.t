Menu mode inside menu mode: "interactive cli" (Configuration 12) can be
chosen in a session and starts a session of its own. Each level returns to
the one that started it on Exit; "q" quits only the inner level, which the
outer one reports as a failed command; the end of input ends them all.

  $ session() { printf "$1" | hostcli -zek > screen.txt; echo "exit $?"; }

  $ session '1\n12\n\n\n5\n5\n'; grep -c 'Adapter Information' screen.txt; grep '^zekcli' screen.txt
  exit 0
  3
  zekcli interactive cli 
  $ session '1\n12\n\n\nq\n5\n'; grep -o -e '^zekcli.*' -e '\*\*\* .*' screen.txt
  exit 0
  zekcli interactive cli 
  *** ZEKCLI_EXIT-- 
  $ session '1\n12\n\n\n'; grep -c 'Adapter Information' screen.txt
  exit 58
  2

Sessions nest 32 levels deep at most: here the 32nd level asks for a 33rd,
which is refused as a failed command of the 32nd, and that one goes on.

  $ { for level in $(seq 32); do printf '1\n12\n\n\n'; done; } > nest.txt
  $ hostcli -zek < nest.txt > screen.txt; echo "exit $?"; grep -c '^zekcli interactive cli' screen.txt; grep '^\*\*\*' screen.txt
  exit 58
  32
  *** ZEKCLI_CMD_FAIL-- Menu sessions are nested too deeply (more than 32 levels).
