// Take the place of the muxer's parts for sound and for H.265, which the page never feeds it.
export const AACRemuxer = undefined
export const H265Remuxer = undefined
