#pragma once

/// Sets the metadata library up for a process that reads and writes photographs on several threads: gives it the lock that its
/// XMP toolkit needs, and mutes its messages. For an application, on its main thread before any other one uses the library; calls
/// beyond the first change nothing. A plug-in leaves both to its application.
void startMetadataLibrary();
