#pragma once

#include <QString>

#include <cstdint>

// The players' accounts in table Users.
namespace fh {

// Adds a player with these name and password, and gives the new ID; -1 when the name is taken, which
// the player has been told. Names are compared without regard to case but stored as typed.
std::int32_t AddUser(const QString& name, const QString& password);

// Removes the player of this name with everything kept for them.
void RemoveUser(const QString& name);

}  // namespace fh
