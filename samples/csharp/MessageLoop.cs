using System;
using System.Runtime.InteropServices;

// The message loop of a program without windows. Waiting by Thread.Sleep, Thread.Join or a task delivers no timer's
// message, and so no event.
public static class MessageLoop
{
    // Dispatches the thread's messages until the condition holds.
    public static void RunUntil(Func<bool> isOver)
    {
        while (!isOver())
        {
            MsgWaitForMultipleObjectsEx(0, IntPtr.Zero, 50, AllInput, InputAvailable);
            Message message;
            while (PeekMessage(out message, IntPtr.Zero, 0, 0, Remove))
            {
                TranslateMessage(ref message);
                DispatchMessage(ref message);
            }
        }
    }

    const uint AllInput = 0x04FF;
    const uint InputAvailable = 0x0004;
    const uint Remove = 1;

    [StructLayout(LayoutKind.Sequential)]
    struct Message
    {
        public IntPtr Window;
        public uint Number;
        public IntPtr WParam;
        public IntPtr LParam;
        public uint Time;
        public int X;
        public int Y;
    }

    [DllImport("user32.dll")]
    static extern uint MsgWaitForMultipleObjectsEx(uint count, IntPtr handles, uint milliseconds, uint mask, uint flags);

    [DllImport("user32.dll", EntryPoint = "PeekMessageW")]
    static extern bool PeekMessage(out Message message, IntPtr window, uint first, uint last, uint removal);

    [DllImport("user32.dll")]
    static extern bool TranslateMessage(ref Message message);

    [DllImport("user32.dll", EntryPoint = "DispatchMessageW")]
    static extern IntPtr DispatchMessage(ref Message message);
}
