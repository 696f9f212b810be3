#pragma once

#include "platform/values/Message.h"

#include <QByteArray>

#include <optional>

namespace kesta::host {

// Bytes sealed for a print server: whoever has its public key can close a seal, only the private key opens it.
//
// A public key is "kk1-KEY-ID" and a private key "kp1-KEY-ID": 32 bytes in base64url, and 8 hexadecimal digits that
// name the pair and tell a damaged key. Sealed bytes are "ks1-ID-TEXT", TEXT in base64url.
struct TicketKeys {
    QByteArray publicKey;
    QByteArray privateKey;
};

// A fresh pair; nothing where there is no randomness.
std::optional<TicketKeys> MakeTicketKeys();

// Why nothing can be sealed for this public key; nothing when it can be.
std::optional<Message> TicketKeyProblem(const QByteArray& publicKey);

// The length tells the content's only roughly. Empty when the key is damaged.
QByteArray SealBytes(const QByteArray& content, const QByteArray& publicKey);

struct OpenedSeal {
    enum class Status {
        Opened,
        NoKey,      // none of the keys belongs to it
        DamagedKey, // no private key, or one that is damaged, among the keys
        Damaged     // the sealed bytes
    };
    Status status = Status::Damaged;
    QByteArray content = {}; // when it was opened
};

// "keys" are private keys one a line; empty lines and those that begin with "#" are passed over.
OpenedSeal OpenSeal(const QByteArray& sealedBytes, const QByteArray& keys);

// Hash of 32 bytes, for a sealed part to name what it belongs to.
QByteArray TicketDigest(const QByteArray& bytes);

// Overwrites what is not to stay in memory.
void Wipe(QByteArray& secret);

} // namespace kesta::host
