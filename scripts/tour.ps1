# The guided tour on Windows: scripts/tour.ps1 BUILD-FOLDER PICTURES. Touch neither keyboard nor mouse.
param([Parameter(Mandatory)] [string] $Build, [Parameter(Mandatory)] [string] $Pictures)
$ErrorActionPreference = 'Stop'
Add-Type -AssemblyName System.Drawing
$folder = (New-Item -ItemType Directory -Force $Pictures).FullName
Remove-Item "$folder\[0-9][0-9]-*.png"

# The tour asks for its pictures with lines "PICTURE file WxH+X+Y" and waits until they are there.
& "$Build\sample\tour\brxSampleTour.exe" $folder | ForEach-Object {
    if ($_ -notmatch '^PICTURE (\S+) (\d+)x(\d+)\+(-?\d+)\+(-?\d+)$') { return $_ }
    $name, $size, $place = $Matches[1], ([int]$Matches[2], [int]$Matches[3]), ([int]$Matches[4], [int]$Matches[5])
    $picture = [System.Drawing.Bitmap]::new($size[0], $size[1])
    $canvas = [System.Drawing.Graphics]::FromImage($picture)
    $canvas.CopyFromScreen($place[0], $place[1], 0, 0, $picture.Size)
    $picture.Save("$folder\$name.part", [System.Drawing.Imaging.ImageFormat]::Png)
    $canvas.Dispose()
    $picture.Dispose()
    # It goes on as soon as there is a file of this name.
    Move-Item "$folder\$name.part" "$folder\$name"
}
exit $LASTEXITCODE
