#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QString>

class AutoMountNetworkDrive;

/// Who connects a share. In clear: goes to other programs by their standard input only, and never
/// into a log.
struct TXCORECOMMON_PRIVATE_EXPORT NetworkCredentials
{
    /// User and password of the drive's address, and its domain.
    [[nodiscard]] static NetworkCredentials of(const AutoMountNetworkDrive &drive);

    QString user;
    QString domain;
    QString password;
    /// The drive has a stored password that cannot be deciphered.
    bool isPasswordUnreadable = false;

    /// Whether both are the same to the letter.
    bool operator==(const NetworkCredentials &other) const
    {
        return user == other.user && domain == other.domain && password == other.password
            && isPasswordUnreadable == other.isPasswordUnreadable;
    }

    /// Whether there is neither user nor password: the share is connected as a guest.
    [[nodiscard]] bool areAnonymous() const;

    /// In words, why they cannot be handed to the gio program: a password that is missing or cannot
    /// be read, line breaks, or more than the 254 bytes (password: 255) that it reads of an answer.
    /// Empty when they can.
    [[nodiscard]] QString problem() const;

    /// The answers to what gio asks for: user, domain and password, a line each.
    [[nodiscard]] QByteArray answers() const;

    /// Whether a text holds the user's name as a word, or the password anywhere, and so must not be
    /// shown.
    [[nodiscard]] bool isIn(const QString &text) const;
};
