# powershell -STA -File search.ps1 URL USER SURNAME
# Searches LEJIS for a person and lists the incidents found.
# Ends with 0: answered, 1: refused, trying again does not help, 2: try again later.
param([Parameter(Mandatory = $true)][string]$Url,
      [Parameter(Mandatory = $true)][string]$User,
      [Parameter(Mandatory = $true)][string]$Surname)

# A class that cannot be created ends the script.
$ErrorActionPreference = "Stop"

# PowerShell itself connects no events of COM: the sample in C# does, and PowerShell compiles it.
$csharp = Join-Path (Split-Path $PSScriptRoot) csharp
$files = "TVLejisCore.cs", "Outcome.cs", "EventConnection.cs", "MessageLoop.cs" | ForEach-Object { Join-Path $csharp $_ }
Add-Type -Path $files

$service = New-Object -ComObject TVLejisCore.LejisSearchWebService
$service.URL = $Url
$service.Username = $User
$request = New-Object -ComObject TVLejisCore.LejisSearchRequest
$request.personArguments.SurName = $Surname
$request.InquiryControls.MaxIncidents = 50

$outcome = New-Object Outcome
$connection = New-Object EventConnection($service, [TVLejisCore._LejisSearchWebServiceEvents], $outcome)
# Raises nothing and returns at once; exactly one of the events follows.
$service.Search($request)
try {
    [MessageLoop]::RunUntil([Func[bool]] { $null -ne $outcome.ExitCode })
}
finally {
    $connection.Dispose()
}
exit $outcome.ExitCode
