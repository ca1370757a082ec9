// A plugin of QEMU that prints how many instructions a program has executed. Debian packages no header of the
// plugin interface; these are the declarations that the counter needs.

#include <cinttypes>
#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" {

struct qemu_plugin_tb;
enum qemu_plugin_op
{
    QEMU_PLUGIN_INLINE_ADD_U64
};

std::size_t qemu_plugin_tb_n_insns(const qemu_plugin_tb* block);
void qemu_plugin_register_vcpu_tb_trans_cb(std::uint64_t id,
                                           void (*callback)(std::uint64_t, qemu_plugin_tb*));
void qemu_plugin_register_vcpu_tb_exec_inline(qemu_plugin_tb* block, qemu_plugin_op operation, void* counter,
                                              std::uint64_t number);
void qemu_plugin_register_atexit_cb(std::uint64_t id, void (*callback)(std::uint64_t, void*), void* data);

[[gnu::visibility("default")]] extern const int qemu_plugin_version = 1;
[[gnu::visibility("default")]] int qemu_plugin_install(std::uint64_t id, const void* info, int argc,
                                                       char** argv);

} // extern "C"

static std::uint64_t instructions = 0;

static void countBlock(std::uint64_t /*id*/, qemu_plugin_tb* block)
{
    qemu_plugin_register_vcpu_tb_exec_inline(block, QEMU_PLUGIN_INLINE_ADD_U64, &instructions,
                                             qemu_plugin_tb_n_insns(block));
}

static void printCount(std::uint64_t /*id*/, void* /*data*/)
{
    // The program may have left an incomplete line.
    std::fprintf(stderr, "\n%" PRIu64 "\n", instructions);
}

int qemu_plugin_install(std::uint64_t id, const void* /*info*/, int /*argc*/, char** /*argv*/)
{
    qemu_plugin_register_vcpu_tb_trans_cb(id, &countBlock);
    qemu_plugin_register_atexit_cb(id, &printCount, nullptr);
    return 0;
}
