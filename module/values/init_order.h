/// The order in which the module's global objects are built when it loads. Objects that need code
/// for it carry `[[gnu::init_priority(k...)]]` with one of these numbers, lower ones first, because
/// the language leaves the order open between source files; what is made at compile time stands
/// here for its place in the list. At unload they go in the reverse order.
#pragma once

constexpr int kInitComboValues = 1001;      ///< `gComboValues`
constexpr int kInitProfilePath = 1002;      ///< `PreferenceKey::m_currentProfilePath`
constexpr int kInitProviders = 1003;        ///< one instance of each provider class
constexpr int kInitModuleRecord = 1004;     ///< `theArxDLL`
constexpr int kInitConstraintsLayer = 1005; ///< `ConstraintsLayerName`
constexpr int kInitArrowNames = 1006;       ///< `ArrowNameTable`
constexpr int kInitValueFactories = 1007;   ///< `kValueFactories`; made at compile time
constexpr int kInitMultiText = 1008;        ///< `g_pstrMulti`; null at compile time
