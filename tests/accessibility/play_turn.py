#!/usr/bin/env python3
"""Plays a turn as a screen reader's user would: every place is found by its name in the tree of
accessible objects, and acted upon there. Needs a session bus and the game on it."""

import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

announced = []  # what a screen reader reads out of its own accord


def listen(event):
    if event.detail1 and event.source.get_role_name() == "notification":
        announced.append(event.source.get_name())


def walk(node, depth=0):
    if node is None or depth > 12:
        return
    yield node
    for i in range(node.get_child_count()):
        try:
            yield from walk(node.get_child_at_index(i), depth + 1)
        except Exception:  # gone meanwhile
            pass


def game():
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        app = desktop.get_child_at_index(i)
        if app is not None and "ombrello" in (app.get_name() or ""):
            return app
    return None


def names():
    app = game()
    found = []
    for node in walk(app) if app else []:
        try:
            found.append((node.get_name() or "", node))
        except Exception:
            pass
    return found


def wait_for(test, what, seconds=60):
    until = time.time() + seconds
    while time.time() < until:
        while GLib.MainContext.default().iteration(False):
            pass
        for name, node in names():
            if test(name):
                return name, node
        time.sleep(0.2)
    told = "\n".join(name for name, _ in names() if name)
    sys.exit(f"in vain waited for {what}; read instead:\n{told}")


def is_announced(beginning, seconds):
    until = time.time() + seconds
    while time.time() < until:
        GLib.MainContext.default().iteration(False)
        if any(name.startswith(beginning) for name in announced):
            return True
        time.sleep(0.01)
    return False


def open_help(listener):
    """More than once: the game may have missed that somebody listens while the bus started."""
    for _ in range(5):
        listener.register("object:state-changed:showing")
        act(wait_for(lambda n: n == "Help", "the entry of the help")[1], "Press")
        wait_for(lambda n: n.startswith("IL MOUSE"), "the help")
        if is_announced("IL MOUSE", 2):
            return
        act(wait_for(lambda n: n == "Help", "the entry of the help")[1], "Press")
    sys.exit(f"the help isn't announced, but {announced}")


def act(node, action):
    for i in range(node.get_n_actions()):
        if node.get_action_name(i).lower() == action.lower():
            return node.do_action(i)
    sys.exit(f"{node.get_name()} can't be {action}: "
             + ", ".join(node.get_action_name(i) for i in range(node.get_n_actions())))


def own_cards():
    return [(name, node) for name, node in names() if "della tua mano" in name]


def main():
    Atspi.set_timeout(10000, 30000)  # a busy machine may keep the game from answering
    listener = Atspi.EventListener.new(listen)
    _, opening = wait_for(lambda n: n.startswith("Tombrello: fai clic"), "the opening")
    act(opening, "Press")
    open_help(listener)
    act(wait_for(lambda n: n == "Nomi dei giocatori", "the entry of the names")[1], "Press")
    wait_for(lambda n: n == "Nome del compagno", "the field of a name")
    for seat in ("OVEST", "NORD", "EST", "TU"):
        whose = "tua carta" if seat == "TU" else f"carta di {seat}"
        wait_for(lambda n: whose in n, f"the draw for {seat}")
        _, deck = wait_for(lambda n: n == "Mazzo", "the deck")
        act(deck, "Press")
    wait_for(lambda n: n.startswith("Tocca a te"), "the own turn", 60)
    wait_for(lambda n: n.startswith("OVEST, ") and n.endswith(" carte"), "a hand of OVEST")
    wait_for(lambda n: n.startswith("Pozzo: "), "the pile")
    _, stock = wait_for(lambda n: n == "Tallone", "the stock")
    act(stock, "Press")
    wait_for(lambda n: "quattordicesima della tua mano" in n, "the card drawn")
    name, third = wait_for(lambda n: "terza della tua mano" in n, "the third card")
    act(third, "Toggle")
    wait_for(lambda n: n == name + ", scelta", "the third card selected")
    act(wait_for(lambda n: n == name + ", scelta", "it")[1], "Toggle")
    wait_for(lambda n: n == name, "the third card lowered")
    announced.clear()
    act(wait_for(lambda n: n == name, "it")[1], "Press")
    wait_for(lambda n: "Gioca OVEST" in n or "OVEST: " in n, "the next seat")
    if not is_announced("Tocca a te", 60):
        sys.exit(f"the own turn isn't announced, but {announced}")
    print(f"drawn, selected, lowered, discarded: {name}")


main()
