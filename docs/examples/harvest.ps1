# Opens the stormwater harvesting window on a project, as a host program does. Where the user saves, the project goes back
# to its file and the three results are printed.
#   powershell -ExecutionPolicy Bypass -File harvest.ps1 PROJECT.kav
param([Parameter(Mandatory)][string]$Path)
$ErrorActionPreference = 'Stop'
$InHostProject = 2

$file = (Resolve-Path -LiteralPath $Path).ProviderPath
$utf8 = New-Object Text.UTF8Encoding $false, $true  # without a mark; text of another encoding is refused, not mangled
$own = ''
$results = ''
$project = [IO.File]::ReadAllText($file, $utf8)
$reuse = New-Object -ComObject StReuse.clsStReuse
if ($reuse.Show($InHostProject, [ref]$own, [ref]$results, [ref]$project) -eq 0) {
    'Nothing was saved.'
    exit 1
}
[IO.File]::WriteAllText($file, $project, $utf8)
$rate, $efficiency, $volume = $results -split "`r`n"
"Reuse rate (gal/day): $rate"
"Efficiency (%): $efficiency"
"Storage volume (ac-ft): $volume"
