#pragma once

#include <QByteArray>

/// What the program prints on a network with four servers: first the services as they are heard of,
/// then each record as it is resolved.
inline const QByteArray kRecording =
    "+;eth0;IPv6;Attic\\032NAS;_smb._tcp;local\n"
    "+;eth0;IPv4;Attic\\032NAS;_smb._tcp;local\n"
    "+;eth0;IPv4;Gr\\195\\182\\195\\159e\\.1\\032\\092\\032\\0592;_smb._tcp;local\n"
    "+;wlan0;IPv4;printers;_smb._tcp;local\n"
    "+;eth0;IPv4;old;_smb._tcp;local\n"
    "=;eth0;IPv6;Attic\\032NAS;_smb._tcp;local;attic.local;fd00::12;445;\n"
    "=;eth0;IPv4;Attic\\032NAS;_smb._tcp;local;attic.local;192.168.7.12;445;\n"
    "=;eth0;IPv4;Gr\\195\\182\\195\\159e\\.1\\032\\092\\032\\0592;_smb._tcp;local;"
    "two.local;192.168.7.13;1445;\"model=Xserve\" \"a;b\"\n"
    "=;wlan0;IPv4;printers;_smb._tcp;local;office\\032pc.local;192.168.7.14;445;\"txtvers=1\"\n"
    "=;wlan0;IPv6;printers;_smb._tcp;local;office\\032pc.local;fe80::14;445;\"txtvers=1\"\n";
