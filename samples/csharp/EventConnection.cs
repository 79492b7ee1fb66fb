using System;
using System.Runtime.InteropServices.ComTypes;

// Connects an object that implements an event interface to the source of the events, until it is disposed of.
public sealed class EventConnection : IDisposable
{
    readonly IConnectionPoint point;
    readonly int cookie;

    public EventConnection(object source, Type events, object sink)
    {
        Guid id = events.GUID;
        ((IConnectionPointContainer)source).FindConnectionPoint(ref id, out point);
        point.Advise(sink, out cookie);
    }

    public void Dispose()
    {
        point.Unadvise(cookie);
    }
}
