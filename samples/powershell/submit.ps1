# powershell -File submit.ps1 URL
# Submits one incident to LEJIS and says what became of it.
# Ends with 0: taken, 1: refused, trying again does not help, 2: try again later.
param([Parameter(Mandatory = $true)][string]$Url)

# A class that cannot be created ends the script.
$ErrorActionPreference = "Stop"

$tvTransientError = -1550879440

function New-Burglary {
    $incident = New-Object -ComObject TVLejisCore.LejisIncidentIndexCard
    $incident.OrganizationName = "Harlow Police Department"
    $incident.OrganizationORI = "PA0250100"
    $incident.ActivityID = "2007-000123"
    $incident.SubmittedDate.Value = Get-Date
    $incident.ActivityDateTime.Value = [datetime]"2007-03-09 14:05:00"
    $incident.ChargeNCICCode = "2202"
    $incident.ChargeDescriptionText = "Burglary, forced entry, residence"
    # The parts of an incident are there from the beginning and are filled in place.
    $incident.Location.StreetNumber.Value = 12
    $incident.Location.StreetName = "HARBOUR"
    $incident.Location.StreetType = "RD"
    $incident.Location.City = "HARLOW"
    $incident.Location.State = "PA"
    $incident.Location.ZIP = "170991234"

    $victim = New-Object -ComObject TVLejisCore.LejisPersonIndexCard
    $victim.GivenName = "JOHN"
    $victim.SurName = "PUBLIC"
    $victim.Involvement = "VICTIM"
    $victim.BirthDate.Value = [datetime]"1970-01-31"
    $victim.RaceNCIC = "X"
    $incident.PersonIndexCards.Add($victim)

    $television = New-Object -ComObject TVLejisCore.LejisPropertyIndexCard
    $television.Category = "TELEVISION"
    $television.Make = "NORTHWIND"
    $television.SerialID = "NW14-88213-K"
    $incident.PropertyIndexCards.Add($television)
    $incident
}

$service = New-Object -ComObject TVLejisCore.LejisSubmissionWebService
$service.URL = $Url
$incident = New-Burglary
try {
    $warnings = $service.SubmitIncident($incident)
}
catch {
    # PowerShell wraps the error of the library.
    $failure = $_.Exception.GetBaseException()
    if ($failure.HResult -eq $tvTransientError) {
        "Not sent, try again later: $($failure.Message)"
        exit 2
    }
    # tvFatalError, or a mistake in this script: neither gets better by itself.
    "Refused: $($failure.Message)"
    exit 1
}
"Submitted with $($warnings.Count) warning(s)."
# The first item has the number 1.
for ($number = 1; $number -le $warnings.Count; ++$number) { "Warning: $($warnings.Item($number))" }
exit 0
