#pragma once

// Constants of the build: the product's name and the addresses it writes and opens.

namespace zafro::product {

inline constexpr char16_t kName[] = u"Zafro Suite";
inline constexpr char16_t kSite[] = u"http://www.zafrosuite.com";
inline constexpr char16_t kMakerSite[] = u"http://www.tirsamontes.com";
inline constexpr char16_t kCopyright[] =
    u"Zafro Suite © 2006 Tirsamontes. Todos los derechos reservados";

// The maker's addresses that the launcher writes at every load; Web5 stays empty.
inline constexpr const char16_t *kWebs[] = {
    u"http://www.tirsamontes.com", u"http://www.zafrosuite.com",
    u"http://www.tirsamontes.com/software", u"http://www.tirsamontes.com/zafro", u""};
inline constexpr const char16_t *kEmails[] = {u"zafro@tirsamontes.com", u"info@zafrosuite.com",
                                              u"tirsamontes@tirsamontes.com"};

} // namespace zafro::product
