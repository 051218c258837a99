# The document that sbom.sh makes of its lists.
def lines: split("\n") | map(select(. != "") | split("\t"));
def ref: "SPDXRef-" + gsub("[^A-Za-z0-9.]"; "-");

($links | lines) as $linked
| ($sums | lines) as $files
| "SPDXRef-Package-brxOpcDlgs6" as $product
| {
    spdxVersion: "SPDX-2.3",
    dataLicense: "CC0-1.0",
    SPDXID: "SPDXRef-DOCUMENT",
    name: "brxOpcDlgs6-\($version)",
    documentNamespace: "urn:uuid:\($id | ascii_downcase)",
    creationInfo: {created: $created, creators: ["Organization: \($company)"]},
    hasExtractedLicensingInfos: [{licenseId: "LicenseRef-brxOpcDlgs6", extractedText: $license}],
    packages: ([{
        SPDXID: $product, name: "brxOpcDlgs6", versionInfo: $version, supplier: "Organization: \($company)",
        downloadLocation: "NOASSERTION", filesAnalyzed: false, licenseConcluded: "LicenseRef-brxOpcDlgs6",
        licenseDeclared: "LicenseRef-brxOpcDlgs6", copyrightText: $copyright
    }] + ($linked | map(.[1:]) | unique | map({
        SPDXID: (.[0] | ref), name: .[0], versionInfo: .[1], downloadLocation: "NOASSERTION", filesAnalyzed: false,
        licenseConcluded: "NOASSERTION", licenseDeclared: .[2], copyrightText: "NOASSERTION"
    }))),
    files: ($files | map({
        SPDXID: ("File-" + .[0] | ref), fileName: ("./" + .[0]), licenseConcluded: "NOASSERTION",
        copyrightText: "NOASSERTION",
        checksums: [{algorithm: "SHA1", checksumValue: .[1]}, {algorithm: "SHA256", checksumValue: .[2]}]
    })),
    relationships: ([{spdxElementId: "SPDXRef-DOCUMENT", relationshipType: "DESCRIBES", relatedSpdxElement: $product}]
        + ($files | map({spdxElementId: $product, relationshipType: "CONTAINS", relatedSpdxElement: ("File-" + .[0] | ref)}))
        + ($linked | map({spdxElementId: ("File-" + .[0] | ref), relationshipType: "STATIC_LINK",
                          relatedSpdxElement: (.[1] | ref)})))
}
