// LateBound SERVICES: a client that finds members by their names when it runs; its runnables and observers are bound when
// it is compiled. Tells of each step; ends with 0 when all have been taken.
{$APPTYPE CONSOLE}
{$mode delphi}
program LateBound;

uses
  Windows, SysUtils, Variants, ActiveX, ComObj, EventSink;

const
  SearchEvents: TGUID = '{23838A68-74C7-4A5C-9530-7C5F571A5D78}';
  InvalidArgument = HRESULT($80040205);
  BadIndex = HRESULT($8002000B);
  Transient = HRESULT($A38F7530);
  Fatal = HRESULT($A38F7531);

type
  IRunnable = interface(IDispatch)
    ['{7A708079-7BAB-45DD-84A8-9918536CC644}']
    procedure Run; safecall;
  end;

  IFutureObserver = interface(IDispatch)
    ['{298C3D57-E048-4D69-9D54-819DA569925B}']
    procedure FutureCompleted(const TheFuture: IDispatch); safecall;
  end;

  // What the library calls back, by its table of functions.
  TWork = class(TInterfacedObject, IDispatch, IRunnable, IFutureObserver)
  public
    Runs: Integer;
    Completions: Integer;
    procedure Run; safecall;
    procedure FutureCompleted(const TheFuture: IDispatch); safecall;
    function GetTypeInfoCount(out Count: Integer): HRESULT; stdcall;
    function GetTypeInfo(Index, LocaleID: Integer; out TypeInfo): HRESULT; stdcall;
    function GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer;
      DispIDs: Pointer): HRESULT; stdcall;
    function Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params; VarResult,
      ExcepInfo, ArgErr: Pointer): HRESULT; stdcall;
  end;

  TListener = class
  public
    Outcome: string;
    procedure Hear(Sender: TObject; DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word;
      Params: TDispParams; VarResult, ExcepInfo, ArgErr: Pointer);
  end;

  TStep = procedure;

var
  Services: string;
  Failed: Integer = 0;

procedure TWork.Run; safecall;
begin
  Inc(Runs);
end;

procedure TWork.FutureCompleted(const TheFuture: IDispatch); safecall;
begin
  Inc(Completions);
end;

function TWork.GetTypeInfoCount(out Count: Integer): HRESULT; stdcall;
begin
  Count := 0;
  Result := S_OK;
end;

function TWork.GetTypeInfo(Index, LocaleID: Integer; out TypeInfo): HRESULT; stdcall;
begin
  Result := E_NOTIMPL;
end;

function TWork.GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer;
  DispIDs: Pointer): HRESULT; stdcall;
begin
  Result := E_NOTIMPL;
end;

function TWork.Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params; VarResult,
  ExcepInfo, ArgErr: Pointer): HRESULT; stdcall;
begin
  Result := E_NOTIMPL;
end;

procedure TListener.Hear(Sender: TObject; DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word;
  Params: TDispParams; VarResult, ExcepInfo, ArgErr: Pointer);
var
  Argument: OleVariant;
begin
  Argument := OleVariant(Params.rgvarg^[0]);
  if DispID = 1 then
    Outcome := IntToStr(Argument.Count) + ' ' + Argument.Item[1].ActivityID
  else
    Outcome := IntToStr(DispID) + ' ' + Argument;
end;

procedure Same(const Expected, Actual: Variant);
begin
  if (VarType(Expected) <> VarType(Actual)) or (not VarIsNull(Expected) and (Expected <> Actual)) then
    raise Exception.CreateFmt('"%s" (%d) was expected, "%s" (%d) came', [VarToStr(Expected), VarType(Expected),
      VarToStr(Actual), VarType(Actual)]);
end;

procedure SameText(const Expected, Actual: WideString);
begin
  if Expected <> Actual then
    raise Exception.CreateFmt('"%s" was expected, "%s" came', [string(Expected), string(Actual)]);
end;

// The error under way is this one.
procedure IsError(Number: HRESULT; const Beginning: string);
var
  Raised: EOleSysError;
begin
  if not (ExceptObject is EOleSysError) then
    raise Exception.Create('an error of another kind: ' + Exception(ExceptObject).Message);
  Raised := EOleSysError(ExceptObject);
  SameText(IntToHex(Number, 8), IntToHex(Raised.ErrorCode, 8));
  if Pos(Beginning, Raised.Message) <> 1 then
    SameText(Beginning, Raised.Message);
end;

procedure NoError;
begin
  raise EAbort.Create('no error was raised');
end;

procedure Take(const Name: string; Step: TStep);
begin
  try
    Step;
    Writeln(Name, ': ok');
  except
    on E: Exception do
    begin
      Inc(Failed);
      Writeln(Name, ': FAILED: ', E.ClassName, ' ', E.Message);
    end;
  end;
end;

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

function New(const Name: string): OleVariant;
begin
  Result := CreateOleObject('TVLejisCore.' + Name);
end;

procedure Create;
begin
  SameText('', New('LejisIncidentIndexCard').ActivityID);
  Same(Integer(0), Integer(New('LejisSubmissionDocument').IncidentIndexCards.Count));
  SameText('', New('LejisSearchRequest').personArguments.SurName);
  SameText('2007-03-09', New('LejisCommon').LejisFormatDate(EncodeDate(2007, 3, 9)));
  SameText('14:05:00', New('LejisCommon').LejisFormatTime(EncodeDate(2007, 3, 9) + EncodeTime(14, 5, 0, 0)));
end;

procedure Properties;
var
  Person: OleVariant;
begin
  Person := New('LejisPersonIndexCard');
  Person.SurName := WideString('M'#$00DC'LLER '#$4E2D);
  Person.CautionIndicator := True;
  Person.address.City := 'HARLOW';
  SameText(WideString('M'#$00DC'LLER '#$4E2D), Person.SurName);
  Same(True, Person.CautionIndicator);
  SameText('HARLOW', Person.address.City);
end;

procedure Numbers;
var
  Person, Controls: OleVariant;
begin
  Person := New('LejisPersonIndexCard');
  Controls := New('LejisInquiryControls');
  Person.Height.Value := SmallInt(510);
  Person.address.StreetNumber.Value := 123456;
  Controls.MaxIncidents := 50;
  Same(SmallInt(510), Person.Height.Value);
  Same(Integer(123456), Person.address.StreetNumber.Value);
  Same(Integer(50), Controls.MaxIncidents);
end;

procedure Dates;
var
  Person: OleVariant;
begin
  Person := New('LejisPersonIndexCard');
  Person.BirthDate.Value := VarFromDateTime(EncodeDate(1970, 1, 31));
  Same(VarFromDateTime(EncodeDate(1970, 1, 31)), Person.BirthDate.Value);
  Person.BirthDate.Value := '2007-03-09';
  Same(VarFromDateTime(EncodeDate(2007, 3, 9)), Person.BirthDate.Value);
end;

procedure Nulls;
var
  Person: OleVariant;
begin
  Person := New('LejisPersonIndexCard');
  Same(Null, Person.Weight.Value);
  Person.Weight.Value := SmallInt(180);
  Person.Weight.Value := Null;
  Same(Null, Person.Weight.Value);
end;

function Walked(const Items: OleVariant): WideString;
var
  Enumerator: IEnumVariant;
  Item: OleVariant;
  Fetched: LongWord;
begin
  Result := '';
  Enumerator := IUnknown(Items._NewEnum) as IEnumVariant;
  while Enumerator.Next(1, Item, Fetched) = S_OK do
    Result := Result + Item.SurName;
end;

procedure Collections;
var
  Incident, Persons, Person: OleVariant;
  Name: Char;
begin
  Incident := New('LejisIncidentIndexCard');
  Persons := Incident.PersonIndexCards;
  for Name := 'A' to 'C' do
  begin
    Person := New('LejisPersonIndexCard');
    Person.SurName := WideString(Name);
    Persons.Add(Person);
  end;
  Persons.Remove(2);
  Same(Integer(2), Persons.Count);
  SameText('C', Persons.Item[2].SurName);
  SameText('AC', Walked(Persons));
  try
    Person := Persons.Item[3];
    NoError;
  except
    on EOleSysError do IsError(BadIndex, 'There is no item 3: the collection holds 2.');
  end;
end;

procedure Errors;
var
  Date, Manager: OleVariant;
begin
  Date := New('NullableDate');
  try
    Date.Value := 'hello';
    NoError;
  except
    on EOleSysError do IsError(InvalidArgument, 'Not a valid date.');
  end;
  Manager := New('FutureManager');
  try
    Manager.InvokeLater(IDispatch(nil));
    NoError;
  except
    on EOleSysError do IsError(InvalidArgument, 'runnable cannot be Nothing');
  end;
end;

procedure Xml;
var
  Document, Person, Copy, Envelope, Read: OleVariant;
begin
  Document := CreateOleObject('MSXML2.DOMDocument.6.0');
  Person := New('LejisPersonIndexCard');
  Copy := New('LejisPersonIndexCard');
  Person.SurName := 'PUBLIC';
  Person.Height.Value := SmallInt(510);
  Copy.FromXmlElement(Person.ToXmlElement(Document));
  SameText('PUBLIC', Copy.SurName);
  Same(SmallInt(510), Copy.Height.Value);

  Envelope := New('SOAPEnvelope');
  Envelope.Body := 'text';
  Read := New('SOAPEnvelope');
  Read.FromXmlElement(Envelope.ToXmlElement(Document));
  if Pos('>text<', string(Read.Body)) = 0 then
    SameText('>text<', Read.Body);
end;

function Incident: OleVariant;
var
  Person: OleVariant;
begin
  Result := New('LejisIncidentIndexCard');
  Result.OrganizationName := 'Harlow Police Department';
  Result.OrganizationORI := 'PA0250100';
  Result.ActivityID := '2007-000123';
  Result.SubmittedDate.Value := VarFromDateTime(EncodeDate(2007, 3, 10));
  Person := New('LejisPersonIndexCard');
  Person.SurName := 'PUBLIC';
  Person.Involvement := 'VICTIM';
  Person.RaceNCIC := WideString('X');
  Result.PersonIndexCards.Add(Person);
end;

function Submission(const Url: string): OleVariant;
begin
  Result := New('LejisSubmissionWebService');
  Result.URL := Url;
end;

procedure Submit;
var
  Warnings: OleVariant;
begin
  Warnings := Submission(Services + '/submission').SubmitIncident(Incident);
  Same(Integer(1), Warnings.Count);
  if Pos('''X'' is not a valid NCIC race code', string(Warnings.Item[1])) = 0 then
    SameText('the warning of the race code', Warnings.Item[1]);
end;

procedure TransientFailure;
begin
  try
    // Nobody listens at this port.
    Submission('http://127.0.0.1:1/submission').SubmitIncident(Incident);
    NoError;
  except
    on EOleSysError do IsError(Transient, 'The LEJIS Interface service is down.');
  end;
end;

procedure Refusal;
begin
  try
    Submission(Services + '/submission').SubmitIncident(New('LejisIncidentIndexCard'));
    NoError;
  except
    on EOleSysError do IsError(Fatal, 'ID is required.');
  end;
end;

function Found(const Url: string): string;
var
  Service, Request: OleVariant;
  Listener: TListener;
  Sink: TEventSink;
begin
  Service := New('LejisSearchWebService');
  Service.URL := Url;
  Service.Username := 'jdoe';
  Request := New('LejisSearchRequest');
  Request.personArguments.SurName := 'PUBLIC';
  Listener := TListener.Create;
  Sink := TEventSink.Create(nil);
  try
    Sink.OnInvoke := Listener.Hear;
    Sink.Connect(Service, SearchEvents);
    Service.Search(Request);
    while Listener.Outcome = '' do
      DispatchMessages;
    Sink.Disconnect;
    Result := Listener.Outcome;
  finally
    Sink.Free;
    Listener.Free;
  end;
end;

procedure Search;
begin
  SameText('1 2007-000123', Found(Services + '/search'));
end;

procedure WrongAddress;
begin
  SameText('3 Invalid URL ''no address''.', Found('no address'));
end;

procedure Withdraw;
begin
  Submission(Services + '/submission').DeleteIncident(Incident);
end;

procedure Deferred;
var
  Manager, Future: OleVariant;
  Work: TWork;
  Kept: IDispatch;
begin
  Work := TWork.Create;
  Kept := Work as IRunnable;
  Manager := New('FutureManager');
  Manager.InvokeLater(Kept);
  while Work.Runs = 0 do
    DispatchMessages;
  Future := New('Future');
  Future.Execute(Kept, Kept);
  while Work.Completions = 0 do
    DispatchMessages;
  Same(Integer(2), Work.Runs);
  Same(True, Future.Completed);
end;

procedure Release;
type
  TCanUnloadNow = function: HRESULT; stdcall;
var
  CanUnloadNow: TCanUnloadNow;
begin
  CanUnloadNow := TCanUnloadNow(GetProcAddress(GetModuleHandle('TVLejisCore.dll'), 'DllCanUnloadNow'));
  Same(Integer(S_OK), Integer(CanUnloadNow()));
end;

begin
  Services := ParamStr(1);
  CoInitialize(nil);
  Take('create', Create);
  Take('properties', Properties);
  Take('numbers', Numbers);
  Take('dates', Dates);
  Take('null', Nulls);
  Take('collections', Collections);
  Take('errors', Errors);
  Take('xml', Xml);
  Take('submit', Submit);
  Take('transient', TransientFailure);
  Take('refused', Refusal);
  Take('search', Search);
  Take('search refused', WrongAddress);
  Take('withdraw', Withdraw);
  Take('deferred', Deferred);
  Take('release', Release);
  CoUninitialize;
  ExitCode := Failed;
end.
