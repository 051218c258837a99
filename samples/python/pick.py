"""Lets a person choose an OPC server, and an item of it. Ends with 0 when an item was chosen.

    py -m pip install comtypes
    py pick.py
"""

import sys

from comtypes.client import CreateObject


def pick():
    # Your program hands over its own servers; these are the sample host's.
    host = CreateObject("brxSample.Host", dynamic=True)
    servers = host.Servers

    selection = CreateObject("brxOpcDlgs6.ServerSelect", dynamic=True)
    if not selection.Show(servers):
        return None
    entry = servers.Item(selection.ServerIndex)
    server = entry.OPCServer
    if not server:
        raise SystemExit(f"{entry.ServerName} is not connected.")

    # Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing.
    group = server.OPCGroups.Add("choosing an item")
    leaf = CreateObject("brxOpcDlgs6.LeafSelect", dynamic=True)
    try:
        chosen = leaf.Show(server, group)
    finally:
        server.OPCGroups.Remove(group.Name)
    return f"{entry.ServerName}: {leaf.ItemID}" if chosen else None


if __name__ == "__main__":
    picked = pick()
    if picked is None:
        sys.exit(1)
    print(picked)
