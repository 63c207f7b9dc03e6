#pragma once
// `quorix konstruktion DATEI [--png BILD]`: runs a construction file and lists every object.
#include "kernel/headless.h"

int konstruktionsBefehl(const quorix::Args& args, std::ostream& out, std::ostream& err);
extern const char* const kKonstruktionAufruf;
