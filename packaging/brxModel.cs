// What a host in C# implements its objects with: a class for each interface of brxOpcAuto6, brxDatabase6 and
// OPCAutomation, of the same name without its underscore, in which every member answers E_NOTIMPL. Derive from them
// and override what your objects have; doc/calls.html says what is called.
//
//     class Servers : brxModel.hlxOPCServers
//     {
//         public override int Count { get { return 2; } }
//         ...
//     }
//
// Dialogs call them on the thread that shows the dialog. What a member throws is told to the person: throw an
// ApplicationException, or any other, with the text; a COMException keeps its error code. Arrays that the OPC
// interfaces want begin at 1: Array.CreateInstance(typeof(int), new[] { count }, new[] { 1 }).

namespace brxModel
{
    using System;
    using System.Runtime.InteropServices;

    [ComVisible(true), ClassInterface(ClassInterfaceType.None)]
    public abstract class ModelObject
    {
        internal static Exception Missing(string member)
        {
            return new NotImplementedException(member + " is not implemented.");
        }
    }
// @CLASSES@
}
