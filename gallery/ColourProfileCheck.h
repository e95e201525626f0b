#pragma once

class QString;
class TXError;

/// Reads the header of an ICC colour profile and tells in `error` why the file cannot be used: one
/// nested error for each reason. The domain is "ColourProfileErrorDomain".
///
/// True when nothing is wrong, and `error`, which may be null, is left alone. Reads the first 128
/// bytes and no more.
bool checkColourProfile(const QString &path, TXError *error);
