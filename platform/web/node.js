// What the probe under node takes over of its surroundings.
Module['preRun'] = function () {
    ['ZENTROX_LENGTHS', 'ZENTROX_FILMS'].forEach(function (name) {
        if (process.env[name]) ENV[name] = process.env[name];
    });
};
