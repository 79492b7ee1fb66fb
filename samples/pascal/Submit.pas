// Submit URL
// Submits one incident to LEJIS and says what became of it.
// Ends with 0: taken, 1: refused, trying again does not help, 2: try again later.
{$APPTYPE CONSOLE}
{$ifdef FPC}{$mode delphi}{$endif}
program Submit;

uses
  SysUtils, Variants, ActiveX, ComObj;

const
  tvTransientError = HRESULT($A38F7530);

function Burglary: OleVariant;
var
  Victim, Television: OleVariant;
begin
  Result := CreateOleObject('TVLejisCore.LejisIncidentIndexCard');
  Result.OrganizationName := 'Harlow Police Department';
  Result.OrganizationORI := 'PA0250100';
  Result.ActivityID := '2007-000123';
  Result.SubmittedDate.Value := VarFromDateTime(Now);
  Result.ActivityDateTime.Value := VarFromDateTime(EncodeDate(2007, 3, 9) + EncodeTime(14, 5, 0, 0));
  Result.ChargeNCICCode := '2202';
  Result.ChargeDescriptionText := 'Burglary, forced entry, residence';
  // The parts of an incident are there from the beginning and are filled in place.
  // A number alone would be of the smallest type that holds it, a ShortInt, which holders of numbers refuse.
  Result.Location.StreetNumber.Value := Integer(12);
  Result.Location.StreetName := 'HARBOUR';
  Result.Location.StreetType := 'RD';
  Result.Location.City := 'HARLOW';
  Result.Location.State := 'PA';
  Result.Location.ZIP := '170991234';

  Victim := CreateOleObject('TVLejisCore.LejisPersonIndexCard');
  Victim.GivenName := 'JOHN';
  Victim.SurName := 'PUBLIC';
  Victim.Involvement := 'VICTIM';
  Victim.BirthDate.Value := VarFromDateTime(EncodeDate(1970, 1, 31));
  // One character alone would be a Char, which automation does not know.
  Victim.RaceNCIC := WideString('X');
  Result.PersonIndexCards.Add(Victim);

  Television := CreateOleObject('TVLejisCore.LejisPropertyIndexCard');
  Television.Category := 'TELEVISION';
  Television.Make := 'NORTHWIND';
  Television.SerialID := 'NW14-88213-K';
  Result.PropertyIndexCards.Add(Television);
end;

function SubmitTo(const Url: string): Integer;
var
  Service, Warnings: OleVariant;
  Number: Integer;
begin
  try
    Service := CreateOleObject('TVLejisCore.LejisSubmissionWebService');
    Service.URL := Url;
    Warnings := Service.SubmitIncident(Burglary);
    Writeln('Submitted with ', Integer(Warnings.Count), ' warning(s).');
    // The first item has the number 1.
    for Number := 1 to Warnings.Count do
      Writeln('Warning: ', string(Warnings.Item[Number]));
    Result := 0;
  except
    on E: EOleSysError do
      if E.ErrorCode = tvTransientError then
      begin
        Writeln('Not sent, try again later: ', E.Message);
        Result := 2;
      end
      else
      begin
        // tvFatalError, or a mistake in this program: neither gets better by itself.
        Writeln('Refused: ', E.Message);
        Result := 1;
      end;
  end;
end;

begin
  if ParamCount <> 1 then
  begin
    Writeln('usage: Submit URL');
    Halt(64);
  end;
  CoInitialize(nil);
  ExitCode := SubmitTo(ParamStr(1));
  CoUninitialize;
end.
