#pragma once

namespace orvane {

/// The help window, as the other windows use it.
class HelpViewer
{
public:
    virtual ~HelpViewer() = default;

    /// Brings up the topic with that number; 0 is the contents.
    virtual void ShowTopic(int number) = 0;
};

/// The numbers of help topics, without those that the delivery wizard keeps in its own tables.
namespace help_topics {
inline constexpr int contents = 0;
inline constexpr int mainWindow = 10;
inline constexpr int preferences = 11;
inline constexpr int editApplet = 12;
inline constexpr int transfer = 54;
inline constexpr int backups = 60;
inline constexpr int pageEffects = 61;
inline constexpr int firstEffect = 100; ///< an effect's topic is this plus its number
} // namespace help_topics

} // namespace orvane
