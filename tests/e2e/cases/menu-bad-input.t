Menu mode with input no one should type: nothing hangs, nothing crashes,
and a session that ends by quitting saves nothing.

  $ session() { printf "$1" | hostcli -zek > screen.txt; echo "exit $?"; }
  $ menus() { grep -c HalvardConsole screen.txt; }

A line of 1 MiB of digits is a number too large for any entry; one of
1 MiB of letters is no answer at all. The menu is shown again each time.

  $ { head -c 1048576 /dev/zero | tr '\0' '7'; printf '\n'; head -c 1048576 /dev/zero | tr '\0' 'x'; printf '\nq\n'; } > big.txt
  $ hostcli -zek < big.txt > screen.txt; echo "exit $?"; menus
  exit 58
  3

NUL bytes, bytes that are not ASCII, signs and numbers beyond 32 bits.

  $ session '\0\n\0q\n\303\251\n\377\n-1\n-2147483649\n4294967296\n+1\nq\n'; menus
  exit 58
  9
  $ ls zekcli.ini 2>&1
  ls: cannot access 'zekcli.ini': No such file or directory
  [2]

The same answers as keyword values reach the command, which judges them:
a 1 MiB -rv for "retval cli", and one with a NUL byte.

  $ { printf '1\n20\n\n\n'; head -c 1048576 /dev/zero | tr '\0' '7'; printf '\nq\n'; } > big.txt
  $ hostcli -zek < big.txt > screen.txt; echo "exit $?"; grep -a '^\*\*\* ' screen.txt | cut -c 1-60
  exit 58
  *** ZEKCLI_CMD_FAIL-- CLI return value "-1" ==> Unknown retu
  $ session '1\n20\n\n\n12\00006\nq\n'; grep -a '^\*\*\* ' screen.txt
  exit 58
  *** ZEKCLI_CMD_FAIL-- CLI return value "12" ==> Unknown return code 12
