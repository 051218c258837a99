#!/usr/bin/env bash
# Signs a DLL, a program or an MSI in place; for BRX_SIGN.
#
#   scripts/package/sign.sh CERTIFICATE.pem KEY.pem FILE
#
# BRX_TIMESTAMP is the address of a time-stamp server; without one a signature ends with its certificate.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../common.sh"

[ $# -eq 3 ] || die "use: CERTIFICATE.pem KEY.pem FILE"
have osslsigncode || die "osslsigncode is missing"
signed=$3.signed
trap 'rm -f "$signed"' EXIT
osslsigncode sign -h sha256 -certs "$1" -key "$2" -n brxOpcDlgs6 ${BRX_TIMESTAMP:+-ts "$BRX_TIMESTAMP"} \
    -in "$3" -out "$signed" >/dev/null
mv "$signed" "$3"
