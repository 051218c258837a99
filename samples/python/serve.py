"""A host with servers of its own: lets a person choose one of three. Ends with 0 when one was chosen.

    py -m pip install comtypes
    py serve.py
"""

import pathlib
import struct
import sys

from comtypes import COMObject, ReturnHRESULT
from comtypes.automation import IDispatch
from comtypes.client import CreateObject, GetModule
from comtypes.hresult import DISP_E_BADINDEX

LIBRARIES = pathlib.Path(__file__).resolve().parents[2] / ("x64" if struct.calcsize("P") == 8 else "x86")
model = GetModule(str(LIBRARIES / "brxOpcAuto6.tlb"))


# A member that a class does not have answers E_NOTIMPL.
class Server(COMObject):
    _com_interfaces_ = [model._hlxOPCServer]

    def __init__(self, node, name):
        super().__init__()
        self.Node = node
        self.ServerName = name


class Servers(COMObject):
    _com_interfaces_ = [model._hlxOPCServers]

    def __init__(self):
        super().__init__()
        self.servers = [
            Server("", "Mill.Server.1"),
            Server("LINE2", "Oven.Server.1"),
            Server("LINE2", "Scales.Server.2"),
        ]

    def _get_Count(self):
        return len(self.servers)

    def _get_Item(self, index):
        position = int(index.value)
        if not 1 <= position <= len(self.servers):
            raise ReturnHRESULT(DISP_E_BADINDEX, "There is no such server.")
        return self.servers[position - 1].QueryInterface(model._hlxOPCServer)


def choose():
    """The position of the server that was chosen, from 1; 0 for none."""
    servers = Servers()
    dialog = CreateObject("brxOpcDlgs6.ServerSelect", dynamic=True)
    return dialog.ServerIndex if dialog.Show(servers.QueryInterface(IDispatch)) else 0


if __name__ == "__main__":
    chosen = choose()
    if chosen == 0:
        sys.exit(1)
    print(f"Server {chosen}")
