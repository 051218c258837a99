// Prints where each member lies in the tables of the interfaces: INTERFACE SLOT MEMBER.
using System;
using System.Reflection;
using System.Runtime.InteropServices;

static class Slots
{
    static void Main(string[] arguments)
    {
        foreach (Type type in Assembly.LoadFrom(arguments[0]).GetExportedTypes())
        {
            if (!type.IsInterface) continue;
            foreach (MethodInfo method in type.GetMethods())
                Console.WriteLine("{0} {1} {2}", type.FullName, Marshal.GetComSlotForMethodInfo(method), method.Name);
        }
    }
}
