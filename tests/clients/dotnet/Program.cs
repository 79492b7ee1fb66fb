// The arguments: sta or mta, the address of the services, texts or numbers (what is expected of errors).
using System;
using System.Threading;

static class Program
{
    static int Main(string[] arguments)
    {
        var steps = new Steps(arguments[2] == "texts");
        bool isSingle = arguments[0] == "sta";
        var thread = new Thread(() => new Client(steps, arguments[1], isSingle).Run());
        thread.SetApartmentState(isSingle ? ApartmentState.STA : ApartmentState.MTA);
        thread.Start();
        thread.Join();
        Console.WriteLine("the thread has ended");
        return steps.ExitCode;
    }
}
