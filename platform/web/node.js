// What the probe under node takes over of its surroundings.
Module['preRun'] = function () {
    if (process.env.ZENTROX_LENGTHS) ENV.ZENTROX_LENGTHS = process.env.ZENTROX_LENGTHS;
};
