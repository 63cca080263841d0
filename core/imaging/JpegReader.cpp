#include "imaging/JpegReader.h"

#include "imaging/PixelBuffer.h"

#include <array>
#include <csetjmp>
#include <cstdio>
#include <fstream>
#include <vector>
// jpeglib.h needs FILE and size_t declared before it.
#include <jerror.h>
#include <jpeglib.h>

namespace sw {
namespace {

// libjpeg reports a fatal error by calling error_exit, which must not
// return: it jumps back into the step that was running, with the decoder's
// words kept for the message.
struct DecoderState {
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    jpeg_source_mgr source{};
    // The decoder takes its fast road only with plenty of bytes ahead of it;
    // a large read-ahead keeps it there, as a file held whole in memory would.
    std::vector<JOCTET> readAhead = std::vector<JOCTET>(std::size_t{1} << 18);
    bool atStartOfFile = true;
    std::jmp_buf failed{};
    char words[JMSG_LENGTH_MAX] = {};
    std::FILE* file = nullptr;
    bool created = false;

    DecoderState() = default;
    DecoderState(const DecoderState&) = delete;
    DecoderState& operator=(const DecoderState&) = delete;
    ~DecoderState() {
        if (created) {
            jpeg_destroy_decompress(&info);
        }
        closeFile();
    }
    void closeFile() {
        if (file != nullptr) {
            std::fclose(file);
            file = nullptr;
        }
    }
};

[[noreturn]] void jumpBack(j_common_ptr common) {
    auto* state = static_cast<DecoderState*>(common->client_data);
    (*common->err->format_message)(common, state->words);
    std::longjmp(state->failed, 1);
}

// Warnings (a stray byte, data that ends early) are damage the decoder passes
// over; they are neither failures nor lines on standard error.
void keepQuiet(j_common_ptr, int) {}

DecoderState& stateOf(j_decompress_ptr info) {
    return *static_cast<DecoderState*>(info->client_data);
}

void startReading(j_decompress_ptr info) {
    stateOf(info).atStartOfFile = true;
}

// A file that ends early is damage the decoder can pass over: it is given
// an end-of-picture marker, and what the file held is decoded.
boolean fillReadAhead(j_decompress_ptr info) {
    DecoderState& state = stateOf(info);
    std::size_t count = std::fread(state.readAhead.data(), 1, state.readAhead.size(), state.file);
    if (count == 0) {
        if (state.atStartOfFile) {
            ERREXIT(info, JERR_INPUT_EMPTY);
        }
        WARNMS(info, JWRN_JPEG_EOF);
        state.readAhead[0] = 0xFF;
        state.readAhead[1] = JPEG_EOI;
        count = 2;
    }
    state.source.next_input_byte = state.readAhead.data();
    state.source.bytes_in_buffer = count;
    state.atStartOfFile = false;
    return TRUE;
}

void skipInput(j_decompress_ptr info, long count) {
    jpeg_source_mgr& source = stateOf(info).source;
    if (count <= 0) {
        return;
    }
    auto left = static_cast<std::size_t>(count);
    while (left > source.bytes_in_buffer) {
        left -= source.bytes_in_buffer;
        fillReadAhead(info);
    }
    source.next_input_byte += left;
    source.bytes_in_buffer -= left;
}

void stopReading(j_decompress_ptr) {}

void readFromTheFile(DecoderState& state) {
    state.source.init_source = startReading;
    state.source.fill_input_buffer = fillReadAhead;
    state.source.skip_input_data = skipInput;
    state.source.resync_to_restart = jpeg_resync_to_restart;
    state.source.term_source = stopReading;
    state.info.src = &state.source;
}

// Each step that may end in error_exit runs in a function of its own whose
// locals are plain values, so that the jump back skips no destructor.
bool readHeader(DecoderState& state) {
    if (setjmp(state.failed) != 0) {
        return false;
    }
    state.info.err = jpeg_std_error(&state.errors);
    state.errors.error_exit = jumpBack;
    state.errors.emit_message = keepQuiet;
    state.info.client_data = &state;
    jpeg_create_decompress(&state.info);
    state.created = true;
    readFromTheFile(state);
    return jpeg_read_header(&state.info, TRUE) == JPEG_HEADER_OK;
}

// Rows arrive top first and go to the bottom-up picture's rows from its end.
// The decoder's defaults (accurate integer transform, smooth upsampling) are
// those every other reader of the file uses, so the pixels agree with them.
bool decodeRows(DecoderState& state, std::uint8_t* pixels, std::size_t stride) {
    if (setjmp(state.failed) != 0) {
        return false;
    }
    state.info.out_color_space = JCS_EXT_BGR;
    jpeg_start_decompress(&state.info);
    const JDIMENSION height = state.info.output_height;
    while (state.info.output_scanline < height) {
        JSAMPROW row = pixels + stride * (height - 1 - state.info.output_scanline);
        jpeg_read_scanlines(&state.info, &row, 1);
    }
    jpeg_finish_decompress(&state.info);
    return true;
}

} // namespace

struct JpegReader::Handle {
    DecoderState state;
};

bool JpegReader::IsJpeg(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::array<unsigned char, 3> start{};
    return file.read(reinterpret_cast<char*>(start.data()), start.size()) && start[0] == 0xFF &&
           start[1] == 0xD8 && start[2] == 0xFF;
}

JpegReader::JpegReader(const std::string& path) : handle_(std::make_unique<Handle>()) {
    DecoderState& state = handle_->state;
    state.file = std::fopen(path.c_str(), "rb");
    if (state.file == nullptr || !readHeader(state) || state.info.image_width == 0 ||
        state.info.image_height == 0) {
        return;
    }
    headerRead_ = true;
    width_ = static_cast<int>(state.info.image_width);
    height_ = static_cast<int>(state.info.image_height);
    fourColour_ =
        state.info.jpeg_color_space == JCS_CMYK || state.info.jpeg_color_space == JCS_YCCK;
}

JpegReader::~JpegReader() = default;

std::optional<Picture> JpegReader::Decode(std::string& error) {
    DecoderState& state = handle_->state;
    if (!headerRead_ || fourColour_) {
        error = "the decoder cannot read this picture";
        return std::nullopt;
    }
    const std::size_t stride = Picture::Stride(width_);
    std::vector<std::uint8_t> pixels = PixelBuffer(stride * static_cast<std::size_t>(height_));
    const bool decoded = decodeRows(state, pixels.data(), stride);
    state.closeFile();
    if (!decoded) {
        error = state.words;
        return std::nullopt;
    }
    return Picture::FromBottomUpBgr(width_, height_, std::move(pixels));
}

} // namespace sw
