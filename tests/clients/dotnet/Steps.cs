using System;
using System.Reflection;
using System.Runtime.InteropServices;

// Runs what a client does step by step and tells of each.
public sealed class Steps
{
    // Under Wine a call through the table of functions brings no text of an error from another apartment.
    readonly bool areTextsExpected;
    int failed;

    public Steps(bool areTextsExpected)
    {
        this.areTextsExpected = areTextsExpected;
    }

    public int ExitCode
    {
        get { return failed == 0 ? 0 : 1; }
    }

    public void Run(string name, Action step)
    {
        try
        {
            step();
            Console.WriteLine("{0}: ok", name);
        }
        catch (Exception error)
        {
            ++failed;
            Console.WriteLine("{0}: FAILED: {1}", name, error);
        }
    }

    public static void Same(object expected, object actual)
    {
        if (!Equals(expected, actual))
            throw new Exception(string.Format("'{0}' was expected, '{1}' came", expected, actual));
    }

    public void Raises(int number, string beginning, Action call)
    {
        Exception raised = Raised(call);
        if (raised == null) throw new Exception("no error was raised");
        Same(number.ToString("X8"), raised.HResult.ToString("X8"));
        if (areTextsExpected && !raised.Message.StartsWith(beginning)) Same(beginning, raised.Message);
    }

    static Exception Raised(Action call)
    {
        try
        {
            call();
            return null;
        }
        catch (TargetInvocationException error)
        {
            return error.InnerException;
        }
        catch (Exception error)
        {
            return error;
        }
    }

    // Lets go of what the client has dropped.
    public static void Collect()
    {
        for (int time = 0; time < 3; ++time)
        {
            GC.Collect();
            GC.WaitForPendingFinalizers();
        }
    }

    // S_OK: the library holds no object, of whomever.
    public static void LibraryMayGo()
    {
        IntPtr library = GetModuleHandle("TVLejisCore.dll");
        if (library == IntPtr.Zero) throw new Exception("the library is not there");
        IntPtr function = GetProcAddress(library, "DllCanUnloadNow");
        var canUnloadNow = (CanUnloadNow)Marshal.GetDelegateForFunctionPointer(function, typeof(CanUnloadNow));
        Same(0, canUnloadNow());
    }

    delegate int CanUnloadNow();

    [DllImport("kernel32.dll", EntryPoint = "GetModuleHandleW", CharSet = CharSet.Unicode)]
    static extern IntPtr GetModuleHandle(string name);

    [DllImport("kernel32.dll", CharSet = CharSet.Ansi)]
    static extern IntPtr GetProcAddress(IntPtr module, string name);
}
