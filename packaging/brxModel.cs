// What a host in C# implements its objects with: a class for each interface of brxOpcAuto6, brxDatabase6 and
// OPCAutomation, of the same name without its underscore or I, in which every member answers E_NOTIMPL. Derive from them
// and override what your objects have; doc/calls.html says what is called.
//
//     [ClassInterface(ClassInterfaceType.None)] // late callers get the interface's members, and no others
//     public class Servers : brxModel.hlxOPCServers
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
    using ComTypes = System.Runtime.InteropServices.ComTypes;

    [ComVisible(true), ClassInterface(ClassInterfaceType.None)]
    public abstract class ModelObject
    {
        internal static Exception Missing(string member)
        {
            return new NotImplementedException(member + " is not implemented.");
        }
    }

    /// <summary>What _NewEnum of a collection gives: each of its elements, an object, once.</summary>
    [ComVisible(true), ClassInterface(ClassInterfaceType.None)]
    public sealed class Enumeration : ComTypes.IEnumVARIANT
    {
        const int S_OK = 0, S_FALSE = 1;

        readonly object[] elements;
        int next;

        public Enumeration(params object[] elements) : this(elements, 0) { }
        Enumeration(object[] elements, int next)
        {
            this.elements = elements;
            this.next = next;
        }

        public int Next(int count, object[] values, IntPtr fetched)
        {
            int given = 0;
            for (; given < count && next < elements.Length; ++given)
                values[given] = new DispatchWrapper(elements[next++]);
            if (fetched != IntPtr.Zero) Marshal.WriteInt32(fetched, given);
            return given == count ? S_OK : S_FALSE;
        }
        public int Skip(int count)
        {
            int left = elements.Length - next;
            next += Math.Min(count, left);
            return count <= left ? S_OK : S_FALSE;
        }
        public int Reset()
        {
            next = 0;
            return S_OK;
        }
        public ComTypes.IEnumVARIANT Clone() { return new Enumeration(elements, next); }
    }
// @CLASSES@
}
