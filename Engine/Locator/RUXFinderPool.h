// Storage of finders: a search makes one for each control and drops them all at its end.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace rux {

/// Gives out pieces of one size from larger blocks. What is given back is given out again; when nothing is
/// out, all blocks but the first go. One thread.
class TFinderPool {
 public:
    static constexpr std::size_t PieceSize = 32;

    void* Take() {
        if (!FFree) AddBlock();
        TPiece* piece = FFree;
        FFree = piece->Next;
        ++FOut;
        return piece;
    }
    void Give(void* storage) {
        auto* piece = static_cast<TPiece*>(storage);
        piece->Next = FFree;
        FFree = piece;
        if (--FOut == 0 && FBlocks.size() > 1) Shrink();
    }

 private:
    static constexpr std::size_t BlockPieces = 1024;
    union TPiece {
        TPiece* Next;
        alignas(std::max_align_t) unsigned char Storage[PieceSize];
    };

    void AddBlock() {
        FBlocks.push_back(std::make_unique<TPiece[]>(BlockPieces));
        Thread(*FBlocks.back().get());
    }
    void Thread(TPiece& first) {
        TPiece* const pieces = &first;
        for (std::size_t i = BlockPieces; i-- > 0;) {
            pieces[i].Next = FFree;
            FFree = &pieces[i];
        }
    }
    void Shrink() {
        FBlocks.resize(1);
        FFree = nullptr;
        Thread(*FBlocks.front().get());
    }

    std::vector<std::unique_ptr<TPiece[]>> FBlocks;
    TPiece* FFree = nullptr;
    std::size_t FOut = 0;
};

}  // namespace rux
