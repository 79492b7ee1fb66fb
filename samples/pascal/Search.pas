// Search URL USER SURNAME
// Searches LEJIS for a person and lists the incidents found.
// Ends with 0: answered, 1: refused, trying again does not help, 2: try again later.
// The event sink is Free Pascal's; in Delphi the import of the type library makes one.
{$APPTYPE CONSOLE}
{$mode delphi}
program Search;

uses
  Windows, SysUtils, Variants, ActiveX, ComObj, EventSink;

const
  SearchEvents: TGUID = '{23838A68-74C7-4A5C-9530-7C5F571A5D78}';
  // The numbers of the events.
  SearchCompleted = 1;
  ConfigurationError = 3;
  NetworkError = 4;
  ServiceError = 5;

  Pending = -1;

type
  TOutcome = class
  private
    FExitCode: Integer;
    procedure List(const Incidents: OleVariant);
    procedure Tell(const Meaning: string; const Reason: OleVariant; Code: Integer);
  public
    constructor Create;
    procedure Hear(Sender: TObject; DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word;
      Params: TDispParams; VarResult, ExcepInfo, ArgErr: Pointer);
    property ExitCode: Integer read FExitCode;
  end;

constructor TOutcome.Create;
begin
  FExitCode := Pending;
end;

procedure TOutcome.Hear(Sender: TObject; DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word;
  Params: TDispParams; VarResult, ExcepInfo, ArgErr: Pointer);
var
  Argument: OleVariant;
begin
  Argument := OleVariant(Params.rgvarg^[0]);
  case DispID of
    SearchCompleted: List(Argument);
    ConfigurationError: Tell('Not set up correctly, tell the administrator: ', Argument, 1);
    NetworkError: Tell('No answer, try again later: ', Argument, 2);
    ServiceError: Tell('Refused: ', Argument, 1);
  end;
end;

procedure TOutcome.List(const Incidents: OleVariant);
var
  Incident, Person: OleVariant;
  Number, PersonNumber: Integer;
begin
  Writeln(Integer(Incidents.Count), ' incident(s) found.');
  for Number := 1 to Incidents.Count do
  begin
    Incident := Incidents.Item[Number];
    Writeln(string(Incident.OrganizationORI), ' ', string(Incident.ActivityID), ' ',
      string(Incident.ChargeDescriptionText));
    for PersonNumber := 1 to Incident.PersonIndexCards.Count do
    begin
      Person := Incident.PersonIndexCards.Item[PersonNumber];
      Writeln('    ', string(Person.GivenName), ' ', string(Person.SurName), ' (', string(Person.Involvement), ')');
    end;
  end;
  FExitCode := 0;
end;

procedure TOutcome.Tell(const Meaning: string; const Reason: OleVariant; Code: Integer);
begin
  Writeln(Meaning, string(Reason));
  FExitCode := Code;
end;

// The events come from the thread's messages. A windowed program dispatches them already.
procedure DispatchMessages;
var
  Message: TMsg;
begin
  MsgWaitForMultipleObjects(0, nil^, False, 50, QS_ALLINPUT);
  while PeekMessage(Message, 0, 0, 0, PM_REMOVE) do
  begin
    TranslateMessage(Message);
    DispatchMessage(Message);
  end;
end;

function SearchFor(const Url, User, Surname: string): Integer;
var
  Service, Request: OleVariant;
  Outcome: TOutcome;
  Sink: TEventSink;
begin
  Service := CreateOleObject('TVLejisCore.LejisSearchWebService');
  Service.URL := Url;
  Service.Username := User;
  Request := CreateOleObject('TVLejisCore.LejisSearchRequest');
  Request.personArguments.SurName := Surname;
  Request.InquiryControls.MaxIncidents := 50;

  Outcome := TOutcome.Create;
  Sink := TEventSink.Create(nil);
  try
    Sink.OnInvoke := Outcome.Hear;
    Sink.Connect(Service, SearchEvents);
    // Raises nothing and returns at once; exactly one of the events follows.
    Service.Search(Request);
    while Outcome.ExitCode = Pending do
      DispatchMessages;
    Sink.Disconnect;
    Result := Outcome.ExitCode;
  finally
    Sink.Free;
    Outcome.Free;
  end;
end;

begin
  if ParamCount <> 3 then
  begin
    Writeln('usage: Search URL USER SURNAME');
    Halt(64);
  end;
  CoInitialize(nil);
  ExitCode := SearchFor(ParamStr(1), ParamStr(2), ParamStr(3));
  CoUninitialize;
end.
