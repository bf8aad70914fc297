# Sourced by what proves a package: a screen with a window manager, and a turn played there by
# presses. Before: `work`, a folder. After: how to `press` a point of the table, and whether it
# `shows_card`.

proof=$(basename "$0" .sh)
say() { echo "$proof: $*"; }
fail() { say "FAILED: $*" >&2 && exit 1; }

exec 3< <(exec Xvfb -displayfd 1 -screen 0 800x680x24 -nolisten tcp -noreset 2>/dev/null)
screen=$!
read -r display <&3
export DISPLAY=:$display
cat >"$work/rc.xml" <<'END'
<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse></mouse><keyboard>
<keybind key="A-F4"><action name="Close"/></keybind></keyboard></openbox_config>
END
openbox --config-file "$work/rc.xml" >/dev/null 2>&1 &
manager=$!

until_true() { # SECONDS COMMAND...
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || fail "in vain waited for: $*"
    sleep 0.2
  done
}
keys() { for key in "$@"; do xdotool key "$key" && sleep 0.3; done; }
has_drawn() { press 430 300 && sleep 0.3 && shows_card 562 530; }
has_discarded() { press 260 530 && sleep 0.3 && ! shows_card 562 530; }
play_turn() { # [COMMAND, run between the draw and the discard]
  press 400 300
  keys alt+o Down Right Up Return # the quickest pace
  for _ in {1..60}; do
    shows_card 258 530 && break
    press 400 300
    keys Return
  done
  until_true 60 shows_card 500 530
  until_true 120 has_drawn
  "${@:-true}"
  until_true 60 has_discarded
}
