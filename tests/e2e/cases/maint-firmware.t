update firmware writes a firmware image to the adapter. The library's
progress and messages show as it goes; a restart is needed afterwards. The
command writes no result record, not even on success.

  $ printf 'version=4.3.1.2\nimage bytes\n' > fw.img
  $ hostcli -zek update firmware -zek=0 -filepath=fw.img -result
  \r25% Complete\r\r              \rFirmware 4.3.1.2 written to the adapter flash (esc)
  [ Device 0 on local host ]
  
  Firmware update complete --> 'restart adapter' is required for changes to take effect
  $ test -e update_firmware.dat || echo "no result record"
  no result record
  $ hostcli -zek version adapter -zek=0 -compare=4.3.1.2
  Confirmed:  Adapter firmware version is 4.3.1.2

A refusal shows the banner before the library's code:

  $ hostcli -zek update firmware -zek=0 -filepath=missing.img
  cannot open "missing.img": No such file or directory
  [ Device 0 on local host ]
  
  \r             \r*** The file could not be read or written (esc)
  [255]

set password changes the adapter's management password; the old one must
be given. The account is always "admin".

  $ hostcli -zek set password -zek=0 -old_password=zek -rpc_password=s3cret -result
  [ Device 0 on local host ]
  
  Password has been changed
  $ od -A d -t d4 set_password.dat | sed -n 3p
  0000032           0           0
  $ hostcli -zek set password -zek=0 -old_password=zek -rpc_password=other
  \r             \r*** The old password is not correct (esc)
  [255]
  $ hostcli -zek set password -zek=0 -old_password=s3cret -rpc_password=other
  [ Device 0 on local host ]
  
  Password has been changed

Without -old_password the text its keyword holds goes to the adapter, and
the adapter judges it:

  $ hostcli -zek set password -zek=1 -rpc_password=other
  \r             \r*** The old password is not correct (esc)
  [255]
