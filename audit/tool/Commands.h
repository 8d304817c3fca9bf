#pragma once

#include "Options.h"

namespace ozm::audit::tool {

// Each returns the program's exit code.
int init(const Options &options);
int append(const Options &options);
int show(const Options &options);
int watch(const Options &options);
int importFormer(const Options &options);

int verify(const Options &options);
int reAnchor(const Options &options);
int checkpoint(const Options &options);
int prove(const Options &options);
int exportCopy(const Options &options);
int archive(const Options &options);
int dispose(const Options &options);

} // namespace ozm::audit::tool
