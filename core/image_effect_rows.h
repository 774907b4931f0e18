#pragma once

#include "core/catalogue.h"
#include "core/catalogue_words.h"

namespace orvane::catalogue_rows {

/// The effects of the page "Image Effects", in the order of their numbers.
inline constexpr CatalogueRow imageEffectRows[] = {
    {
        .Kind = EffectKind::AdvancedAnimator,
        .MenuCommand = "mnuAppletsAnimations",
        .Picture = u"applets_animations",
        .Title = u"Advanced Animator",
        .Description =
            u"Create animations, scrolling billboard ads, and slideshows using this wizard.  This "
            u"is for advanced users.",
        .OtherWords = u"animated gif, frames, movie, cartoon, applet, sprite",
        .InTodaysBrowsers =
            u"Today's browsers show this effect only with Orvane's page script, and play its "
            u"sounds only after the visitor's first click or key.",
        .Form = "Anim",
        .MarkerName = u"Animation",
        .Files = FilesNeeded::Always,
        .Uploads = {u"Animate1.class", u"CoolTool3.class"},
    },
    {
        .Kind = EffectKind::AnimationWizard,
        .MenuCommand = "mnuAnimWiz",
        .Picture = u"anim_wiz",
        .Title = u"Animation Wizard",
        .Description = u"This wizard helps you to make exciting animations step by step.",
        .OtherWords = u"animated gif, frames, movie, cartoon, flip book, sequence, applet",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "AnimWizard",
        .MarkerName = u"Animation",
        .Files = FilesNeeded::Always,
        .Uploads = {u"Animate1.class", u"CoolTool3.class"},
    },
    {
        .Kind = EffectKind::BannerWizard,
        .MenuCommand = "mnuBBWiz",
        .Picture = u"bb_wiz",
        .Title = u"Banner/Billboard Wizard",
        .Description =
            u"This wizard helps you to make rotating banners and billboards, step by step.",
        .OtherWords = u"advertisement, ads, rotator, carousel, applet",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "BBWizard",
        .MarkerName = u"Animation",
        .Files = FilesNeeded::Always,
        .Uploads = {u"Animate1.class", u"CoolTool3.class"},
    },
    {
        .Kind = EffectKind::DynamicButton,
        .MenuCommand = "mnuAppletsDynaBut",
        .Picture = u"applets_dyna_but",
        .Title = u"Dynamic Button",
        .Description =
            u"Create buttons that change when the user's mouse moves over them and displays a new "
            u"Web page when the user clicks on them.",
        .OtherWords = u"rollover, hover, mouseover, swap image, navigation",
        .InTodaysBrowsers =
            u"Today's browsers change the picture, but play the sounds only with Orvane's page "
            u"script, after the visitor's first click or key.",
        .Form = "DynaBut",
        .MarkerName = u"Dynamic Button",
        .Files = FilesNeeded::Always,
    },
    {
        .Kind = EffectKind::ImageEffects,
        .MenuCommand = "mnuImageEffects",
        .Picture = u"image_effects",
        .Title = u"Image Effects",
        .Description =
            u"Make your images go wild by applying these effects.  Lake Reflection, Image Cube, "
            u"Image Brighten and Ripple effects produce amazing effects for your Web pages.",
        .OtherWords =
            u"picture, photo, water, mirror, waves, rotating cube, 3d, brightness, glow, hover",
        .InTodaysBrowsers = withScriptAlone,
        .Form = "ImageEffects",
        .MarkerName = u"Image Effects",
        .Files = FilesNeeded::Always,
        .UploadsSupportFiles = true,
    },
    {
        .Kind = EffectKind::MoreImageEffects,
        .MenuCommand = "mnuMoreImageEffects",
        .Picture = u"more_image_effects",
        .Title = u"More Image Effects",
        .Description =
            u"Eight more image special effects that produce amazing effects for your Web pages.",
        .OtherWords = u"picture, photo, wave, zoom, blur, expand, shrink, mosaic, filter",
        .InTodaysBrowsers = withScriptAlone,
        .Form = "ImageEffects2",
        .MarkerName = u"Image Effects 2",
        .Files = FilesNeeded::Always,
        .Uploads = {u"Animate1.class", u"CoolTool3.class", u"invisi.gif"},
    },
    {
        .Kind = EffectKind::AnimatedButton,
        .MenuCommand = "mnuAnimButton",
        .Picture = u"anim_button",
        .Title = u"Animated Button",
        .Description =
            u"Create buttons that animate when the user's mouse moves over them or clicks on "
            u"them.  The buttons can be linked to a Web page when the user clicks on them.",
        .OtherWords = u"rollover, hover, mouseover, navigation",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "AnimButton",
        .MarkerName = u"Animated Button",
        .Files = FilesNeeded::Always,
        .Uploads = {u"Animate1.class", u"CoolTool3.class"},
    },
    {
        .Kind = EffectKind::ImageRollover,
        .MenuCommand = "mnuImgRollover",
        .Picture = u"img_rollover",
        .Title = u"Image Rollover",
        .Description =
            u"Create images that change another image on your Web page when the user's mouse "
            u"moves over them and displays a new Web page when the user clicks on them.",
        .OtherWords = u"mouseover, hover, swap image, thumbnail, gallery, navigation",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "ImgRollover",
        .MarkerName = u"Image Rollover",
        .Files = FilesNeeded::Always,
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::ImageFade,
        .MenuCommand = "mnuImageFade",
        .Picture = u"image_fade",
        .Title = u"Image Fade",
        .Description =
            u"Create a slideshow where images fade from one to the next.  Each image can be "
            u"linked to other Web pages.",
        .OtherWords = u"gallery, photo, picture, crossfade, dissolve, carousel, applet",
        .InTodaysBrowsers = withScriptAlone,
        .Form = "ImageFade",
        .MarkerName = u"Image Fade",
        .Files = FilesNeeded::Always,
        .Uploads = {u"ImageFade2ech.class", u"Pixelator3.class"},
    },
    {
        .Kind = EffectKind::RandomImage,
        .MenuCommand = "mnuRandomImage",
        .Picture = u"random_image",
        .Title = u"Random Image",
        .Description =
            u"Display a random image on your Web page.  Great effect for displaying advertising "
            u"banners and for making your Web site look fresh and new!",
        .OtherWords = u"picture, photo, ads, rotator, picture of the day, shuffle",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmRandom",
        .MarkerName = u"Random Image",
        .Files = FilesNeeded::Always,
        .ReplaceInBody = true,
        .Preview = {.Before = refreshToSee},
    },
    {
        .Kind = EffectKind::FallingImages,
        .MenuCommand = "mnuFallingSnow",
        .Picture = u"falling_snow",
        .Title = u"Falling/Floating Images",
        .Description =
            u"Create falling or floating images (like snowflakes) on your Web page using this "
            u"special effect.",
        .OtherWords =
            u"snow, flakes, rain, leaves, confetti, christmas, winter, hearts, balloons, bubbles, "
            u"picture",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmFallingSnow",
        .MarkerName = u"Falling/Floating",
        .Files = FilesNeeded::Always,
    },
    {
        .Kind = EffectKind::CursorTrail,
        .MenuCommand = "mnuCursorTrail",
        .Picture = u"cursor_trail",
        .Title = u"Mouse Cursor Trail",
        .Description =
            u"Create a trail of images that follows your mouse cursor wherever it moves on your "
            u"Web page!",
        .OtherWords = u"pointer, follow, sparkles, stars, picture",
        .InTodaysBrowsers = withScriptAlone,
        .Form = "frmCursorTrail",
        .MarkerName = u"Mouse Cursor Trail",
        .Files = FilesNeeded::Always,
    },
    {
        .Kind = EffectKind::Slideshow,
        .MenuCommand = "mnuSlideshow",
        .Picture = u"slideshow",
        .Title = u"Slideshow",
        .Description = u"Create a slideshow of images and photos for your Web page!",
        .OtherWords = u"gallery, photo album, pictures, carousel, presentation",
        .InTodaysBrowsers =
            u"Today's browsers change the images without transitions, and its buttons load the "
            u"Web page anew, unless Orvane's page script is there.",
        .Form = "frmSlideshow",
        .MarkerName = u"Slideshow",
        .Files = FilesNeeded::Always,
        .ScriptedHelp = true,
    },
    {
        .Kind = EffectKind::ThoughtBubbles,
        .MenuCommand = "mnuBubbles",
        .Picture = u"bubbles",
        .Title = u"Thought Bubbles",
        .Description =
            u"Show what people or pets in your photos are thinking with these pop-up Thought "
            u"Bubbles.",
        .OtherWords = u"speech, comic, balloon, cartoon, hover, photo, pets",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmBubbleText",
        .MarkerName = u"Thought Bubbles",
        .Files = FilesNeeded::Always,
        .ScriptedHelp = true,
        .Preview = {.Before = u"<br><br><br><br><br><br>"},
    },
    {
        .Kind = EffectKind::ImageScroller,
        .MenuCommand = "mnuImageScroller",
        .Picture = u"image_scroller",
        .Title = u"Image Filmstrip Scroller",
        .Description = u"Create a scrolling filmstrip of your favorite images!",
        .OtherWords = u"gallery, marquee, photo, pictures, carousel",
        .InTodaysBrowsers = byItself,
        .RunsByItself = true,
        .Form = "frmImageScroller",
        .MarkerName = u"Image Scroller",
        .Files = FilesNeeded::Always,
        .ScriptedHelp = true,
    },
};

} // namespace orvane::catalogue_rows
