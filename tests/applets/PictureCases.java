import java.awt.image.BufferedImage;

/** Cube, lake, ripple and fade: what is drawn at known times, at places worked out by hand. */
final class PictureCases extends Cases {
    static void showsTheNearFace() throws Exception {
        // 75 before the eye, 120 pixels of depth: the face reaches 40 pixels to each side of 150,100.
        String page = page("image_effects_cube.html");
        colors(host(page), "0 109,100 0a14ff", "0 110,60 ff0000", "0 189,60 00ff00",
               "0 149,139 0000ff", "0 150,100 ffff00", "0 150,140 0a14ff");
        colors(host(with(page, "RES", "4")), "0 151,60 ff0000");
    }

    static void turnsTheCube() throws Exception {
        String page = page("image_effects_cube.html");
        Host host = host(page);
        BufferedImage first = host.at(0);
        samePicture("a quarter about each axis", first, host.at(900));
        String still = page.replaceAll("(ROT.) VALUE=\"25\"", "$1 VALUE=\"0\"");
        samePicture("round", first, host(with(still, "ROTY", "25")).at(2700));
        samePicture("over", first, host(with(still, "ROTX", "25")).at(900));
        // After 30 degrees the middle of the near face has gone 19 pixels.
        colors(host(with(still, "ROTX", "25")), "300 145,117 ff0000", "300 145,121 0000ff");
        colors(host(with(still, "ROTY", "25")), "300 133,95 00ff00", "300 129,95 ff0000");
        colors(host(with(still, "ROTZ", "25")), "300 162,72 ff0000", "300 170,72 00ff00");
    }

    static void clearsBehindTheCube() throws Exception {
        String page = without(page("image_effects_cube.html"), "BACKR");
        page = page.replaceAll("(ROT[XY]) VALUE=\"25\"", "$1 VALUE=\"0\"");
        colors(host(page), "0 110,60 ff0000", "450 110,60 c014ff");
        colors(host(with(page, "CLEARBACK", "NO")), "0 110,60 ff0000", "450 110,60 ff0000");
    }

    static void mirrorsInTheLake() throws Exception {
        Host host = host(page("image_effects_lake.html"));
        colors(host, "0 7,99 000063", "0 7,100 000063", "0 7,104 000060", "0 7,184 000013",
               "250 7,100 000062", "250 7,104 00005f", "250 7,188 000010", "750 7,100 000063",
               "1250 7,188 000010");
        host.click(5);
        same("link", "[_top http://www.example.com/lake.html]", host.opened.toString());
    }

    static void ripplesThePond() throws Exception {
        // Waves of 60 pixels, 4 high: 44.5 right of the middle lies a trough of the first picture
        // and a crest of the twelfth.
        String page = page("image_effects_ripple.html");
        colors(host(page), "49 204,49 00c831", "600 204,49 00d031", "1250 204,49 00c831",
               "300 194,49 00c531", "600 159,49 009f31");
        Host host = host(without(page, "FRAMES"));
        samePicture("15 pictures of their own", host.at(0), host.at(750));
    }

    static void fades() throws Exception {
        // 55 steps a second: after 146 ms 8 of the 15, at 273 ms all.
        String page = page("image_fade_two_images.html");
        page = page.replace("a.gif", "red.gif").replace("b.gif", "sky.gif");
        Host host = host(page);
        host.click(2500);
        colors(host, "2500 50,40 c86400", "2646 50,40 78b488", "2773 50,40 32faff");
        host.click(2773 + 2600);
        same("link", "[_top http://www.example.com/b.html]", host.opened.toString());
        colors(host, "5546 50,40 c86400");
        colors(host(without(page, "PAUSE")), "373 50,40 32faff");
    }

    static void everyAppletSaysWhichPictureIsMissing() throws Exception {
        for (String row : new String[] {"advanced_animator_two_images IMAGE.0",
                                        "image_fade_two_images IMAGE.0", "image_effects_cube IMAGE",
                                        "image_effects_lake IMAGE", "image_effects_ripple IMAGE"}) {
            String page = page(row.replaceFirst(" .*", ".html"));
            String name = row.replaceFirst(".* ", "");
            says(with(page, name, "no.gif"), "The image \"no.gif\" could not be loaded.");
            says(without(page, name), "The parameter " + name + " is missing.");
        }
    }
}
