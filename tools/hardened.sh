#!/usr/bin/env bash
# Reads a program: is it built so that a fault in it is hard to make use of?
# Usage: tools/hardened.sh PROGRAM
set -euo pipefail
program=${1:?which program?}

faults=0
# Usage: expect WHAT yes|no PATTERN TEXT
expect() {
  local found=no
  grep -qE -- "$3" <<<"$4" && found=yes
  [ "$found" = "$2" ] && return
  echo "$program: $1" >&2
  faults=1
}

header=$(readelf --wide --file-header "$program")
segments=$(readelf --wide --program-headers "$program")
dynamic=$(readelf --wide --dynamic "$program")
symbols=$(readelf --wide --dyn-syms "$program")

expect "always stands at the same address" yes 'Type: +DYN' "$header"
expect "finds its functions only when they are called" yes 'BIND_NOW|Flags:.* NOW' "$dynamic"
expect "keeps its table of functions open to writing" yes 'GNU_RELRO' "$segments"
expect "doesn't watch over its stack" yes '__stack_chk_fail' "$symbols"
expect "has a stack that can be executed" no 'GNU_STACK.* RWE' "$segments"
expect "doesn't say whether its stack is executed" yes 'GNU_STACK' "$segments"
expect "looks for libraries in folders of its own" no 'RPATH|RUNPATH' "$dynamic"
exit $faults
