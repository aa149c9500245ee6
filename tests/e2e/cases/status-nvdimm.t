show nvdimm shows the NVDIMM and its super capacitor. The result record
holds its 328 bytes behind a size field of 332.

  $ hbasim reset $TESTDIR/scenarios/status-ports.json >/dev/null
  $ hostcli -zek show nvdimm -zek=1 -result
  [ Device 1 on local host ]
  
      NVDIMM and Super Cap Information
  
      NVDIMM Firmware Version:    12
      NVDIMM Packaged Version:    12
      NVDIMM Temperature:         33C
      NVDIMM Serial Number:       NV3P0001
      NVDIMM Part Number:         NV-8G-SIM
      NVDIMM Status:               0x2 (Armed)
      Super Cap Detected:         True
      Super Cap Serial Number:	   SCNV3P0001
      Super Cap Part Number:      SC-25F-SIM
      Super Cap Firmware Revision: 0x3
      Super Cap Packaged Revision: 0x3
      Super Cap Status:            0x84 (Idle, Full Charged, Initialized)
      Super Cap Power Status:      0x1 (Good)
      Super Cap Health:            0x3 (Good)
      Super Cap Warning:           0x0 (None)
      Super Cap Charged Percent:  100%
  
  
  $ od -A d -t d4 -j 32 -N 8 show_nvdimm.dat
  0000032           0         332
  0000040

An adapter without the NVDIMM feature is refused before it is asked:

  $ hostcli -zek show nvdimm -zek=0 -result=refused.dat
  \r             \r*** The feature is not supported by this adapter -- NVDIMM data LUN is not supported by the specified adapter (esc)
  [255]
  $ test -e refused.dat || echo "no result record"
  no result record
  $ hostcli -zek execute nvdimm -zek=0 -erase
  \r             \r*** The feature is not supported by this adapter -- NVDIMM data LUN is not supported by the specified adapter (esc)
  [255]

execute nvdimm acts on the first flag given, in the order -disarm, -erase,
-update, -update_all, -scap_selftest, -scrub, whatever the order typed. It
shows no banner and writes no result record.

  $ hostcli -zek execute nvdimm -zek=1 -update -erase -result
  NVDIMM successfully configured.
  
  $ test -e execute_nvdimm.dat || echo "no result record"
  no result record
  $ hostcli -zek execute nvdimm -zek=1 -scrub -update
  NVDIMM update completed.
  
  $ hostcli -zek execute nvdimm -zek=1 -scap_selftest
  NVDIMM successfully configured.
  

Without a flag there is nothing to do:

  $ hostcli -zek execute nvdimm -zek=1
  \r             \r*** ZEKCLI_PARSE_FAIL -- One of -disarm, -erase, -update, -update_all, -scap_selftest or -scrub is required (esc)
  [52]
