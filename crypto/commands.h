#pragma once
// Headless commands of the cryptography tools: cipher, blockcipher, rc4, enigma, vigenere-crack.
#include "kernel/headless.h"

#include <vector>

namespace crypto {

std::vector<quorix::HeadlessCommand> cryptoCommands();

}  // namespace crypto
