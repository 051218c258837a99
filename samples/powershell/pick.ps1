# Lets a person choose an OPC server, and an item of it. Exit status: 0 an item was chosen, 1 none was.
#
#     powershell -STA -File pick.ps1

# Your program hands over its own servers; these are the sample host's.
$sampleHost = New-Object -ComObject brxSample.Host
$servers = $sampleHost.Servers

$selection = New-Object -ComObject brxOpcDlgs6.ServerSelect
if (-not $selection.Show([ref]$servers)) { exit 1 }
$entry = $servers.Item($selection.ServerIndex)
$server = $entry.OPCServer
if ($null -eq $server) {
    Write-Output "$($entry.ServerName) is not connected."
    exit 1
}

# Any group of the server will do: the dialog asks it whether the server has the item, and adds nothing.
$group = $server.OPCGroups.Add('choosing an item')
$leaf = New-Object -ComObject brxOpcDlgs6.LeafSelect
try { $chosen = $leaf.Show($server, $group) }
finally { $server.OPCGroups.Remove($group.Name) }
if (-not $chosen) { exit 1 }
Write-Output "$($entry.ServerName): $($leaf.ItemID)"
