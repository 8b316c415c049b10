// The forms of a host: read, brought to life, shown.
#pragma once

#include <string>
#include <vector>

#include "host/app/HostOptions.h"
#include "platform/headless/loader/HFormLoader.h"

namespace rux {

/// All forms of the options as plain data. Nothing is alive yet: a file that cannot be read or parsed raises
/// here.
std::vector<TFormFile> ReadForms(const THostOptions& options);

class THostForms {
 public:
    /// Makes the objects of all forms; the first form becomes the main form.
    THostForms(HToolkit& kit, const THostOptions& options, const std::vector<TFormFile>& files);
    /// Shows the main form, those that ask for it and those of --show.
    void Show();
    /// Shows the forms of --modal, each inside the loop of the one before, once the application's loop runs.
    void QueueModal();
    /// UTF-8.
    std::string Dump() const;

 private:
    HCustomForm& FormNamed(const std::string& name) const;

    HToolkit& FKit;
    HClassParents FParents;
    HFormLoader FLoader;
    std::vector<HComponent*> FRoots;
    std::vector<HCustomForm*> FShow, FModal;
};

}  // namespace rux
